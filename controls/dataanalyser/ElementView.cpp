#include "controls/dataanalyser/ElementView.h"

#include <QHeaderView>
#include <QItemSelectionModel>
#include <QKeyEvent>
#include <QScrollBar>
#include <algorithm>
#include <utility>

#include "controls/common/QtText.h"
#include "controls/dataanalyser/ElementHeader.h"
#include "controls/dataanalyser/RowDelegate.h"

namespace controls::dataanalyser {

namespace {

constexpr int rowPixels = 24;

}  // namespace

ElementView::ElementView(std::function<void()> copy, QWidget* parent)
    : QTableView(parent), copy_(std::move(copy)), elements_(new ElementModel(this)) {
    setItemDelegate(new RowDelegate(this));  // NOLINT(cppcoreguidelines-owning-memory): its parent owns it
    setModel(elements_);
    setSelectionBehavior(SelectRows);
    setSelectionMode(ExtendedSelection);
    setEditTriggers(NoEditTriggers);
    setShowGrid(false);
    setWordWrap(false);
    setTabKeyNavigation(false);
    setFrameShape(NoFrame);
    setHorizontalScrollMode(ScrollPerPixel);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    setAccessibleName(QStringLiteral("Πίνακας δεδομένων των στοιχείων"));
    verticalHeader()->hide();
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    verticalHeader()->setDefaultSectionSize(rowPixels);
    setUpHeadings();
    clock_.start();
    setOrder({});
}

void ElementView::setUpHeadings() {
    // NOLINTNEXTLINE(cppcoreguidelines-owning-memory): its parent owns it
    auto* headings = new ElementHeader(this);
    setHorizontalHeader(headings);
    connect(headings, &QHeaderView::sectionClicked, this, [this](int section) { sortBy(section); });
    connect(headings, &QHeaderView::sectionResized, this,
            [this](int section, int, int pixels) { setWidth(section, pixels); });
    connect(headings, &QHeaderView::sectionHandleDoubleClicked, this,
            [this](int section) { setWidth(section, ColumnWidths::automatic); });
}

void ElementView::setOrder(const RowOrder& order) {
    const auto chosen = selected();
    const int current = cursor();
    elements_->setOrder(order);
    horizontalHeader()->setSortIndicator(static_cast<int>(order.column),
                                         order.descending ? Qt::DescendingOrder : Qt::AscendingOrder);
    select(chosen);
    setCursorTo(current);
}

void ElementView::sortBy(int section) {
    const auto column = columnOfCode(section);
    if (!column) return;
    RowOrder order = elements_->order();
    order.descending = order.column == *column && !order.descending;
    order.column = *column;
    setOrder(order);
}

int ElementView::numberAt(int row) const {
    const auto& numbers = elements_->numbers();
    return row < 0 || row >= static_cast<int>(numbers.size()) ? 0 : numbers[static_cast<std::size_t>(row)];
}

std::vector<int> ElementView::selected() const {
    std::vector<int> rows;
    for (const QModelIndex& index : selectionModel()->selectedRows()) rows.push_back(index.row());
    std::ranges::sort(rows);
    std::ranges::transform(rows, rows.begin(), [this](int row) { return numberAt(row); });
    return rows;
}

void ElementView::select(const std::vector<int>& numbers) {
    QItemSelection rows;
    for (const int number : numbers) {
        const int row = elements_->rowOf(number);
        if (row >= 0) rows.select(elements_->index(row, 0), elements_->index(row, columnCount - 1));
    }
    selectionModel()->select(rows, QItemSelectionModel::ClearAndSelect);
}

int ElementView::cursor() const { return numberAt(currentIndex().row()); }

void ElementView::setCursorTo(int number) {
    const int row = elements_->rowOf(number);
    const QModelIndex index = row < 0 ? QModelIndex() : elements_->index(row, 0);
    setAutoScroll(false);
    selectionModel()->setCurrentIndex(index, QItemSelectionModel::NoUpdate);
    setAutoScroll(true);
}

int ElementView::top() const { return numberAt(rowAt(0)); }

void ElementView::scrollTopTo(int number) {
    const int row = elements_->rowOf(number);
    if (row >= 0) scrollTo(elements_->index(row, 0), PositionAtTop);
}

void ElementView::setWidths(const ColumnWidths& widths) {
    widths_ = widths;
    showWidths();
}

void ElementView::showWidths() {
    showingWidths_ = true;
    const auto widths = widths_.spread(viewport()->width());
    for (int i = 0; i < columnCount; ++i) {
        horizontalHeader()->resizeSection(i, widths[static_cast<std::size_t>(i)]);
    }
    showingWidths_ = false;
}

void ElementView::setWidth(int section, int pixels) {
    const auto column = columnOfCode(section);
    if (!column || showingWidths_) return;
    widths_.set(*column, pixels);
    if (pixels == ColumnWidths::automatic) showWidths();
}

void ElementView::keyboardSearch(const QString& search) {
    const int row = elements_->rowOf(typeAhead_.type(fromQt(search), clock_.elapsed()));
    if (row >= 0) setCurrentIndex(elements_->index(row, 0));
}

void ElementView::resizeEvent(QResizeEvent* event) {
    QTableView::resizeEvent(event);
    showWidths();
}

void ElementView::keyPressEvent(QKeyEvent* event) {
    if (event->matches(QKeySequence::Copy)) {
        copy_();
        return;
    }
    QTableView::keyPressEvent(event);
}

}  // namespace controls::dataanalyser
