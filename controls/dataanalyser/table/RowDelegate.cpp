#include "controls/dataanalyser/table/RowDelegate.h"

#include <QAbstractItemView>
#include <QPainter>
#include <algorithm>

#include "controls/common/Appearance.h"
#include "controls/dataanalyser/look/CategoryLook.h"
#include "controls/dataanalyser/look/ShownText.h"
#include "controls/dataanalyser/table/TableModel.h"

namespace controls::dataanalyser {

namespace {

constexpr int padding = 7;

const TableModel& modelOf(const QModelIndex& index) { return static_cast<const TableModel&>(*index.model()); }

QColor ground(const QStyleOptionViewItem& option, const QModelIndex& index) {
    if (option.state & QStyle::State_Selected) return appearance::selected;
    return index.row() % 2 == 0 ? appearance::paper : appearance::stripe;
}

const QAbstractItemView* viewWithCursor(const QStyleOptionViewItem& option, const QModelIndex& index) {
    const auto* view = qobject_cast<const QAbstractItemView*>(option.widget);
    const bool under = view && view->hasFocus() && view->currentIndex().row() == index.row();
    return under ? view : nullptr;
}

/// Whether this is the column of the rows' names, whose cells have the colour of the category.
bool carriesColor(const QModelIndex& index) {
    const auto& columns = modelOf(index).analyser().dataSet().columns;
    const auto first = std::ranges::find_if(columns, [](const auto& column) { return !column.isNumber(); });
    return index.column() == static_cast<int>(first - columns.begin());
}

void paintChip(QPainter& painter, const QRect& cell, const QModelIndex& index) {
    const Categories& categories = modelOf(index).analyser().categories();
    const auto place = static_cast<std::size_t>(modelOf(index).placeAt(index.row()));
    if (categories.ofRow[place] < 0) return;
    const auto colors = categoryLook(categories, categories.ofRow[place]).colors;
    const QRect chip = cell.adjusted(2, 2, -4, -2);
    painter.fillRect(chip, colors.fill);
    painter.fillRect(QRect(chip.left(), chip.top(), 3, chip.height()), colors.edge);
}

void paintCursor(QPainter& painter, const QRect& cell, bool current) {
    painter.fillRect(QRect(cell.left(), cell.top(), cell.width(), 1), appearance::accent);
    painter.fillRect(QRect(cell.left(), cell.bottom(), cell.width(), 1), appearance::accent);
    if (current) painter.fillRect(QRect(cell.left(), cell.bottom() - 1, cell.width(), 2), appearance::warm);
}

}  // namespace

void RowDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                        const QModelIndex& index) const {
    painter->save();
    painter->fillRect(option.rect, ground(option, index));
    const bool colored = carriesColor(index);
    if (colored) paintChip(*painter, option.rect, index);
    const QString text = index.data(Qt::DisplayRole).toString();
    const QRect inner = option.rect.adjusted(colored ? padding + 2 : padding, 0, -padding, 0);
    const auto weight = colored ? QFont::DemiBold : QFont::Normal;
    const auto font =
        appearance::fittingFont(text, inner.width(), tableFontPixels, minTableFontPixels, weight)
            .value_or(appearance::font(minTableFontPixels, weight));
    painter->setFont(font);
    painter->setPen(appearance::text);
    const auto align = index.data(Qt::TextAlignmentRole).value<Qt::Alignment>();
    painter->drawText(inner, static_cast<int>(align),
                      QFontMetrics(font).elidedText(text, Qt::ElideRight, inner.width()));
    if (const auto* view = viewWithCursor(option, index)) {
        paintCursor(*painter, option.rect, view->currentIndex().column() == index.column());
    }
    painter->restore();
}

}  // namespace controls::dataanalyser
