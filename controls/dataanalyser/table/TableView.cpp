#include "controls/dataanalyser/table/TableView.h"

#include <QHeaderView>
#include <QItemSelectionModel>
#include <QKeyEvent>
#include <QScopedValueRollback>
#include <QScrollBar>
#include <algorithm>
#include <utility>

#include "controls/common/Appearance.h"
#include "controls/common/QtText.h"
#include "controls/dataanalyser/look/ShownText.h"
#include "controls/dataanalyser/model/RowNames.h"
#include "controls/dataanalyser/table/RowDelegate.h"
#include "controls/dataanalyser/table/TableHeader.h"
#include "controls/dataanalyser/table/TableModel.h"

namespace controls::dataanalyser {

namespace {

constexpr int rowPixels = 24;
constexpr int cellPadding = 20;
constexpr int minNeeded = 60;
constexpr int maxNeeded = 240;
constexpr int maxForWord = 80;

/// The cell with the most characters. A temperature has more of them in °C, with its minus.
std::string longestCell(const formats::DataColumn& column) {
    std::string longest;
    for (std::size_t row = 0; row < column.cells.size(); ++row) {
        const std::string text =
            isTemperature(column) ? cellText(column, row, TemperatureUnit::celsius) : column.cells[row];
        if (text.size() > longest.size()) longest = text;
    }
    return longest;
}

/// The width that a column needs for the cell with the most characters, and for the longest word of its
/// heading in small letters.
int neededWidth(const formats::DataColumn& column, const QFontMetrics& metrics) {
    const int width = metrics.horizontalAdvance(toQt(longestCell(column)));
    const QFontMetrics small(appearance::font(minTableFontPixels, QFont::DemiBold));
    int word = 0;
    for (const QString& part : toQt(column.title).split(u' '))
        word = std::max(word, small.horizontalAdvance(part));
    return std::clamp(std::max(width + cellPadding, std::min(word + 8, maxForWord)), minNeeded, maxNeeded);
}

}  // namespace

TableView::TableView(Analyser& analyser, std::function<void()> copy, QWidget* parent)
    : QTableView(parent), analyser_(analyser), copy_(std::move(copy)), rows_(new TableModel(analyser, this)) {
    setItemDelegate(new RowDelegate(this));  // NOLINT(cppcoreguidelines-owning-memory): its parent owns it
    setModel(rows_);
    setSelectionBehavior(SelectRows);
    setSelectionMode(ExtendedSelection);
    setEditTriggers(NoEditTriggers);
    setShowGrid(false);
    setWordWrap(false);
    setTabKeyNavigation(false);
    setFrameShape(NoFrame);
    setHorizontalScrollMode(ScrollPerPixel);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    setAccessibleName(QStringLiteral("Πίνακας δεδομένων"));
    verticalHeader()->hide();
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    verticalHeader()->setDefaultSectionSize(rowPixels);
    setUpHeadings();
    clock_.start();
}

void TableView::setUpHeadings() {
    // NOLINTNEXTLINE(cppcoreguidelines-owning-memory): its parent owns it
    auto* headings = new TableHeader(this);
    setHorizontalHeader(headings);
    connect(headings, &QHeaderView::sectionClicked, this, [this](int section) { sortBy(section); });
    connect(headings, &QHeaderView::sectionResized, this,
            [this](int section, int, int pixels) { setWidth(section, pixels); });
    connect(headings, &QHeaderView::sectionHandleDoubleClicked, this,
            [this](int section) { setWidth(section, ColumnLayout::automatic); });
}

void TableView::refreshRows() {
    {
        const QScopedValueRollback refreshing(refreshing_, true);
        rows_->reset();
        const RowOrder order = analyser_.order();
        horizontalHeader()->setSortIndicator(order.column ? static_cast<int>(*order.column) : -1,
                                             order.descending ? Qt::DescendingOrder : Qt::AscendingOrder);
        measureColumns();
    }
    refreshColumns();
    refreshSelection();
    refreshTop();
}

void TableView::refreshUnit() { rows_->refreshCells(); }

void TableView::measureColumns() {
    const QFontMetrics metrics(appearance::font(tableFontPixels));
    needed_.clear();
    for (const formats::DataColumn& column : analyser_.dataSet().columns) {
        needed_.push_back(neededWidth(column, metrics));
    }
}

void TableView::refreshColumns() {
    const QScopedValueRollback refreshing(refreshing_, true);
    const ColumnLayout layout = analyser_.layout();
    if (needed_.size() != layout.count()) return;
    const auto widths = layout.spread(viewport()->width(), needed_);
    for (std::size_t i = 0; i < widths.size(); ++i) {
        setColumnHidden(static_cast<int>(i), !layout.shown(i));
        if (layout.shown(i)) horizontalHeader()->resizeSection(static_cast<int>(i), widths[i]);
    }
}

void TableView::setWidth(int section, int pixels) {
    if (refreshing_ || !rows_->column(section)) return;
    ColumnLayout layout = analyser_.layout();
    layout.setWidth(static_cast<std::size_t>(section), pixels);
    analyser_.setLayout(layout);
}

int TableView::rowOfId(std::int32_t id) const { return rows_->rowOf(analyser_.placeOf(id)); }

std::vector<std::int16_t> TableView::selectedIds() const {
    std::vector<std::int16_t> ids;
    for (const QItemSelectionRange& range : selectionModel()->selection()) {
        for (int row = range.top(); row <= range.bottom(); ++row) {
            if (const int place = rows_->placeAt(row); place >= 0) ids.push_back(analyser_.idAt(place));
        }
    }
    std::ranges::sort(ids);
    const auto repeated = std::ranges::unique(ids);
    ids.erase(repeated.begin(), repeated.end());
    return ids;
}

void TableView::refreshSelection() {
    const QScopedValueRollback refreshing(refreshing_, true);
    auto wanted = analyser_.selected();
    std::ranges::sort(wanted);
    if (wanted != selectedIds()) {
        QItemSelection selection;
        const int last = rows_->columnCount() - 1;
        for (int row = 0; row < rows_->rowCount() && !wanted.empty(); ++row) {
            if (!std::ranges::binary_search(wanted, analyser_.idAt(rows_->placeAt(row)))) continue;
            if (!selection.empty() && selection.back().bottom() == row - 1) {
                selection.back() = {selection.back().topLeft(), rows_->index(row, last)};
            } else {
                selection.select(rows_->index(row, 0), rows_->index(row, last));
            }
        }
        selectionModel()->select(selection, QItemSelectionModel::ClearAndSelect);
    }
    const int cursorRow = rowOfId(analyser_.cursor());
    if (cursorRow == currentIndex().row()) return;
    setAutoScroll(false);
    selectionModel()->setCurrentIndex(cursorRow < 0 ? QModelIndex() : rows_->index(cursorRow, cursorColumn_),
                                      QItemSelectionModel::NoUpdate);
    setAutoScroll(true);
}

void TableView::refreshTop() {
    const QScopedValueRollback refreshing(refreshing_, true);
    executeDelayedItemsLayout();
    const int row = rowOfId(analyser_.top());
    if (row >= 0) {
        scrollTo(rows_->index(row, horizontalHeader()->logicalIndexAt(0)), PositionAtTop);
    } else {
        scrollToTop();
    }
}

void TableView::sortBy(int section) {
    const RowOrder order = analyser_.order();
    sort(section, order.column == static_cast<std::size_t>(section) && !order.descending);
}

void TableView::sort(int section, bool descending) {
    analyser_.noteTop(0);
    analyser_.setDescending(descending);
    analyser_.setSortColumn(static_cast<std::int16_t>(section));
}

bool TableView::sortByKey(const QKeyEvent& event) {
    const bool arrow = event.key() == Qt::Key_Up || event.key() == Qt::Key_Down;
    if (!arrow || !(event.modifiers() & Qt::AltModifier)) return false;
    if (currentIndex().isValid()) sort(cursorColumn_, event.key() == Qt::Key_Down);
    return true;
}

void TableView::keyboardSearch(const QString& search) {
    const auto find = [this](std::string_view typed) {
        return findRowByStart(analyser_.dataSet(), analyser_.rows(), typed);
    };
    const auto place = typeAhead_.type(fromQt(search), clock_.elapsed(), find);
    if (place) setCurrentIndex(rows_->index(rows_->rowOf(*place), cursorColumn_));
}

void TableView::resizeEvent(QResizeEvent* event) {
    QTableView::resizeEvent(event);
    refreshColumns();
}

void TableView::keyPressEvent(QKeyEvent* event) {
    if (event->matches(QKeySequence::Copy)) return copy_();
    if (!sortByKey(*event)) QTableView::keyPressEvent(event);
}

void TableView::selectionChanged(const QItemSelection& selected, const QItemSelection& deselected) {
    QTableView::selectionChanged(selected, deselected);
    if (!refreshing_) analyser_.setSelected(selectedIds());
}

void TableView::currentChanged(const QModelIndex& current, const QModelIndex& previous) {
    QTableView::currentChanged(current, previous);
    const int place = rows_->placeAt(current.row());
    if (!refreshing_) cursorColumn_ = std::max(current.column(), 0);
    if (!refreshing_) analyser_.noteCursor(place < 0 ? std::int16_t{0} : analyser_.idAt(place));
    // The delegate draws the row of the cursor in a way of its own.
    viewport()->update();
}

void TableView::scrollContentsBy(int dx, int dy) {
    QTableView::scrollContentsBy(dx, dy);
    if (refreshing_ || dy == 0) return;
    const int place = rows_->placeAt(rowAt(0));
    analyser_.noteTop(place < 0 ? std::int16_t{0} : analyser_.idAt(place));
}

}  // namespace controls::dataanalyser
