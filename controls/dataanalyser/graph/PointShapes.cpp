#include "controls/dataanalyser/graph/PointShapes.h"

#include <QPainter>
#include <cmath>
#include <numbers>

namespace controls::dataanalyser {

namespace {

/// The corners of a polygon around 0, 0, the first at the top. Their distances from the middle alternate.
QPolygonF corners(int count, double distance, double other) {
    QPolygonF polygon;
    for (int i = 0; i < count; ++i) {
        const double angle = 2 * std::numbers::pi * i / count;
        const double away = i % 2 == 0 ? distance : other;
        polygon += QPointF(away * std::sin(angle), -away * std::cos(angle));
    }
    return polygon;
}

QPolygonF outline(PointShape shape, double radius) {
    switch (shape) {
        case PointShape::square:
            return QRectF(-0.9 * radius, -0.9 * radius, 1.8 * radius, 1.8 * radius);
        case PointShape::triangle:
            return corners(3, 1.35 * radius, 1.35 * radius).translated(0, 0.25 * radius);
        case PointShape::diamond:
            return corners(4, 1.3 * radius, 1.3 * radius);
        case PointShape::star:
            return corners(10, 1.6 * radius, 0.7 * radius);
        default:
            return {};
    }
}

}  // namespace

void paintPoint(QPainter& painter, PointShape shape, const QPointF& place, double radius) {
    if (shape == PointShape::circle) return painter.drawEllipse(place, radius, radius);
    painter.drawPolygon(outline(shape, radius).translated(place));
}

}  // namespace controls::dataanalyser
