#pragma once

#include <QStyledItemDelegate>

namespace controls::dataanalyser {

/// Draws the cells of the table in the colours of the component.
class RowDelegate : public QStyledItemDelegate {
  public:
    using QStyledItemDelegate::QStyledItemDelegate;
    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;
};

}  // namespace controls::dataanalyser
