#include "controls/dataanalyser/graph/GraphHover.h"

#include <QPainter>
#include <algorithm>

#include "controls/common/Appearance.h"

namespace controls::dataanalyser {

namespace {

constexpr double ring = 7;
constexpr double gap = 12;
constexpr int padding = 7;
constexpr int linePixels = 17;
constexpr int fontPixels = 12;

QFont fontOf(qsizetype line) {
    return appearance::font(fontPixels, line == 0 ? QFont::DemiBold : QFont::Normal);
}

QSizeF sizeOf(const QStringList& lines) {
    int widest = 0;
    for (qsizetype i = 0; i < lines.size(); ++i) {
        widest = std::max(widest, QFontMetrics(fontOf(i)).horizontalAdvance(lines[i]));
    }
    return {widest + 2.0 * padding, static_cast<double>(lines.size()) * linePixels + 2 * padding - 4};
}

}  // namespace

GraphHover::GraphHover(QGraphicsItem* parent) : QGraphicsItem(parent) {
    setAcceptedMouseButtons(Qt::NoButton);
    setZValue(30);
    hide();
}

void GraphHover::showAt(const QPointF& place, const QStringList& lines, const QRectF& area) {
    prepareGeometryChange();
    place_ = place;
    lines_ = lines;
    label_ = QRectF(place + QPointF(gap, -gap), sizeOf(lines));
    label_.translate(0, -label_.height());
    if (label_.right() > area.right()) label_.moveRight(place.x() - gap);
    if (label_.left() < area.left()) label_.moveLeft(area.left());
    if (label_.top() < area.top()) label_.moveTop(place.y() + gap);
    show();
    update();
}

QRectF GraphHover::boundingRect() const {
    return label_.united(QRectF(place_ - QPointF(ring, ring), QSizeF(2 * ring, 2 * ring)))
        .adjusted(-2, -2, 2, 2);
}

void GraphHover::paint(QPainter* painter, const QStyleOptionGraphicsItem*, QWidget*) {
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setBrush(Qt::NoBrush);
    painter->setPen(QPen(appearance::warm, 2.5));
    painter->drawEllipse(place_, ring, ring);
    painter->setPen(QPen(appearance::deep, 1));
    painter->setBrush(appearance::deep);
    painter->drawRoundedRect(label_, 4, 4);
    painter->setPen(appearance::paper);
    QRectF line = label_.adjusted(padding, padding - 2, 0, 0);
    line.setHeight(linePixels);
    for (qsizetype i = 0; i < lines_.size(); ++i, line.translate(0, linePixels)) {
        painter->setFont(fontOf(i));
        painter->drawText(line, Qt::AlignLeft | Qt::AlignVCenter, lines_[i]);
    }
}

}  // namespace controls::dataanalyser
