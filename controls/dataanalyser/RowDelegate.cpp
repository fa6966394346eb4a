#include "controls/dataanalyser/RowDelegate.h"

#include <QAbstractItemView>
#include <QPainter>

#include "controls/common/Appearance.h"
#include "controls/dataanalyser/Column.h"
#include "controls/dataanalyser/ElementModel.h"

namespace controls::dataanalyser {

namespace {

constexpr int padding = 7;
constexpr int fontPixels = 12;
constexpr int leastFontPixels = 9;

const Element& elementOf(const QModelIndex& index) {
    const auto& model = static_cast<const ElementModel&>(*index.model());
    return *findElement(model.numbers()[static_cast<std::size_t>(index.row())]);
}

QColor ground(const QStyleOptionViewItem& option, const QModelIndex& index) {
    if (option.state & QStyle::State_Selected) return appearance::selected;
    return index.row() % 2 == 0 ? appearance::paper : appearance::stripe;
}

/// Whether the keyboard would act on this cell's row.
bool underCursor(const QStyleOptionViewItem& option, const QModelIndex& index) {
    const auto* view = qobject_cast<const QAbstractItemView*>(option.widget);
    return view && view->hasFocus() && view->currentIndex().row() == index.row();
}

}  // namespace

void RowDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                        const QModelIndex& index) const {
    painter->save();
    painter->fillRect(option.rect, ground(option, index));
    const bool symbol = index.column() == static_cast<int>(Column::symbol);
    if (symbol) {
        const auto colors = appearance::familyColors(elementOf(index).family);
        const QRect chip = option.rect.adjusted(4, 2, -4, -2);
        painter->fillRect(chip, colors.fill);
        painter->fillRect(QRect(chip.left(), chip.top(), 3, chip.height()), colors.edge);
    }
    const QString text = index.data(Qt::DisplayRole).toString();
    const QRect inner = option.rect.adjusted(padding, 0, -padding, 0);
    const auto weight = symbol ? QFont::Bold : QFont::Normal;
    painter->setFont(appearance::fittingFont(text, inner.width(), fontPixels, leastFontPixels, weight)
                         .value_or(appearance::font(leastFontPixels, weight)));
    painter->setPen(appearance::text);
    const auto align = index.data(Qt::TextAlignmentRole).value<Qt::Alignment>();
    painter->drawText(inner, static_cast<int>(align), text);
    if (underCursor(option, index)) {
        painter->fillRect(QRect(option.rect.left(), option.rect.top(), option.rect.width(), 1),
                          appearance::accent);
        painter->fillRect(QRect(option.rect.left(), option.rect.bottom(), option.rect.width(), 1),
                          appearance::accent);
    }
    painter->restore();
}

}  // namespace controls::dataanalyser
