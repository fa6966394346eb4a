#pragma once

#include <QGraphicsItem>
#include <QStringList>

namespace controls::dataanalyser {

/// Shows which mark is under the pointer: a ring around it and a label.
class GraphHover : public QGraphicsItem {
  public:
    explicit GraphHover(QGraphicsItem* parent);

    /// Shows the ring at a place and the label beside it, within `area`. The first line is the name.
    void showAt(const QPointF& place, const QStringList& lines, const QRectF& area);
    const QStringList& lines() const { return lines_; }

    QRectF boundingRect() const override;
    void paint(QPainter* painter, const QStyleOptionGraphicsItem* option, QWidget* widget) override;

  private:
    QPointF place_;
    QStringList lines_;
    QRectF label_;
};

}  // namespace controls::dataanalyser
