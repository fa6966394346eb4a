#include "controls/dataanalyser/graph/GraphMarks.h"

#include <QPainter>
#include <QStyleOptionGraphicsItem>
#include <algorithm>
#include <cmath>
#include <optional>

#include "controls/dataanalyser/graph/PointShapes.h"

namespace controls::dataanalyser {

namespace {

constexpr double pointRadius = 4;
constexpr double smallPointRadius = 2.5;
constexpr std::size_t manyPoints = 1000;
constexpr double reach = 12;
constexpr double minNameWidth = 11;
constexpr int namePixels = 11;
constexpr int pointNamePixels = 10;
// With more points on show there is no room for names before the reader zooms in.
constexpr std::size_t maxNamedPoints = 400;
constexpr int minNameSpace = 120;
constexpr int maxNameSpace = 180;
constexpr int nameGap = 8;

QColor halfway(const QColor& one, const QColor& other) {
    return {(one.red() + other.red()) / 2, (one.green() + other.green()) / 2,
            (one.blue() + other.blue()) / 2};
}

/// Where beside a point a name covers nothing; nothing when there is no room for it.
std::optional<QRectF> freePlace(const QPointF& point, const QSizeF& size, const QRectF& bounds,
                                const std::vector<QRectF>& taken) {
    const double away = pointRadius + 1;
    const double right = point.x() + away;
    const double left = point.x() - away - size.width();
    const double above = point.y() - size.height();
    for (const QPointF& corner :
         {QPointF(right, above), QPointF(left, above), QPointF(right, point.y()), QPointF(left, point.y()),
          QPointF(point.x() - size.width() / 2, point.y() - away - size.height()),
          QPointF(point.x() - size.width() / 2, point.y() + away)}) {
        const QRectF area(corner, size);
        if (!bounds.contains(area)) continue;
        if (std::ranges::none_of(taken, [&](const QRectF& other) { return other.intersects(area); }))
            return area;
    }
    return std::nullopt;
}

}  // namespace

GraphMarks::GraphMarks(QGraphicsItem* parent) : QGraphicsItem(parent) {
    setFlag(ItemUsesExtendedStyleOption);
    setAcceptedMouseButtons(Qt::NoButton);
    setZValue(20);
}

void GraphMarks::setContent(GraphContent content) {
    content_ = std::move(content);
    update();
}

void GraphMarks::setPlotArea(const QRectF& area) {
    prepareGeometryChange();
    plotArea_ = area;
}

double GraphMarks::across(double x) const {
    return plotArea_.left() + content_.window.x.place(x) * plotArea_.width();
}

double GraphMarks::down(double y) const {
    return plotArea_.bottom() - content_.window.y.place(y) * plotArea_.height();
}

QPointF GraphMarks::place(const GraphMark& mark) const {
    return content_.graph.plan.hasPoints() ? QPointF(across(mark.x), down(mark.y))
                                           : QPointF(barOf(mark).center().x(), down(mark.y));
}

QRectF GraphMarks::barOf(const GraphMark& mark) const {
    const AxisRange& y = content_.window.y;
    const double foot = y.logarithmic ? plotArea_.bottom() : down(0);
    const QRectF bar(QPointF(across(mark.left), down(mark.y)), QPointF(across(mark.right), foot));
    return bar.normalized();
}

int GraphMarks::markAt(const QPointF& position) const {
    if (!plotArea_.adjusted(-reach, -reach, reach, reach).contains(position)) return -1;
    const auto& marks = content_.graph.marks;
    int nearest = -1;
    double nearestDistance = reach;
    for (std::size_t i = 0; i < marks.size(); ++i) {
        const QPointF away = place(marks[i]) - position;
        if (!content_.graph.plan.hasPoints()) {
            const QRectF bar = barOf(marks[i]);
            if (position.x() >= bar.left() && position.x() < bar.right()) return static_cast<int>(i);
        } else if (const double distance = std::hypot(away.x(), away.y()); distance < nearestDistance) {
            nearestDistance = distance;
            nearest = static_cast<int>(i);
        }
    }
    return nearest;
}

int GraphMarks::spaceFor(const std::vector<QString>& names, double height) {
    const QFontMetrics metrics(appearance::font(namePixels));
    int widest = 2 * nameGap;
    for (const QString& name : names) widest = std::max(widest, metrics.horizontalAdvance(name));
    // One pixel more, because widths are rounded.
    return std::min(widest + 1 + nameGap,
                    std::clamp(static_cast<int>(height / 4), minNameSpace, maxNameSpace));
}

QRectF GraphMarks::boundingRect() const { return plotArea_.adjusted(-60, -10, 60, maxNameSpace); }

CategoryLook GraphMarks::lookOf(const GraphMark& mark) const {
    const auto category = static_cast<std::size_t>(mark.category);
    if (mark.category >= 0 && category < content_.categories.size()) return content_.categories[category];
    return {appearance::familyColors(Family::transition)};
}

void GraphMarks::paint(QPainter* painter, const QStyleOptionGraphicsItem* option, QWidget*) {
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    if (content_.graph.plan.kind == GraphKind::bar) paintNames(*painter);
    painter->setClipRect(plotArea_.adjusted(-pointRadius, -pointRadius, pointRadius, pointRadius));
    if (content_.graph.plan.hasPoints()) {
        const QRectF exposed = option->exposedRect.adjusted(-reach, -reach, reach, reach);
        paintPoints(*painter, exposed);
        painter->setClipRect(plotArea_);
        paintPointNames(*painter, exposed);
    } else {
        painter->setClipRect(plotArea_);
        paintBars(*painter);
    }
    painter->restore();
}

void GraphMarks::paintPoints(QPainter& painter, const QRectF& exposed) const {
    const auto& marks = content_.graph.marks;
    const double size = marks.size() > manyPoints ? smallPointRadius : pointRadius;
    int category = -2;
    CategoryLook look;
    for (const GraphMark& mark : marks) {
        const QPointF at = place(mark);
        if (!exposed.contains(at)) continue;
        if (mark.category != category) {
            category = mark.category;
            look = lookOf(mark);
            painter.setBrush(look.colors.edge);
            painter.setPen(marks.size() > manyPoints ? QPen(Qt::NoPen) : QPen(appearance::paper, 1));
        }
        paintPoint(painter, look.shape, at, size);
    }
    if (content_.selected.empty()) return;
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(appearance::text, 2));
    for (const GraphMark& mark : marks) {
        if (content_.selected.contains(mark.row)) painter.drawEllipse(place(mark), size + 3, size + 3);
    }
}

void GraphMarks::paintPointNames(QPainter& painter, const QRectF& exposed) const {
    const auto& marks = content_.graph.marks;
    std::vector<QRectF> taken;
    for (const GraphMark& mark : marks) {
        const QRectF point(place(mark) - QPointF(pointRadius, pointRadius),
                           2 * QSizeF(pointRadius, pointRadius));
        if (plotArea_.intersects(point)) taken.push_back(point);
    }
    if (taken.size() > maxNamedPoints) return;
    painter.setFont(appearance::font(pointNamePixels));
    painter.setPen(appearance::text);
    const QFontMetrics metrics(painter.font());
    for (std::size_t i = 0; i < content_.names.size(); ++i) {
        const QString& name = content_.names[i];
        const QSizeF size(metrics.horizontalAdvance(name) + 1, pointNamePixels);
        const auto area = freePlace(place(marks[i]), size, plotArea_, taken);
        if (!area) continue;
        taken.push_back(*area);
        if (exposed.intersects(*area)) painter.drawText(*area, Qt::AlignCenter | Qt::TextDontClip, name);
    }
}

void GraphMarks::paintBars(QPainter& painter) const {
    const bool hasGroups = content_.graph.categories().size() > 1;
    for (const GraphMark& mark : content_.graph.marks) {
        const QRectF bar = barOf(mark);
        if (!bar.adjusted(-1, -1, 1, 1).intersects(plotArea_)) continue;
        const CategoryLook look = lookOf(mark);
        const QColor& edge = look.colors.edge;
        const bool chosen = content_.selected.contains(mark.row);
        const bool wide = bar.width() > 4;
        painter.setBrush(chosen || !wide ? edge : halfway(edge, appearance::paper));
        painter.setPen(wide ? QPen(chosen ? appearance::text : edge, 1) : QPen(Qt::NoPen));
        painter.drawRect(wide ? bar : bar.adjusted(0, 0, std::max(0.0, 1 - bar.width()), 0));
        if (!hasGroups || mark.category < 0 || bar.width() < 2 * pointRadius) continue;
        painter.setBrush(edge);
        painter.setPen(QPen(appearance::paper, 1));
        paintPoint(painter, look.shape, place(mark), pointRadius);
    }
}

void GraphMarks::paintNames(QPainter& painter) const {
    const auto& marks = content_.graph.marks;
    const double width = plotArea_.width() / content_.window.x.span();
    painter.setFont(appearance::font(namePixels));
    const QFontMetrics metrics(painter.font());
    painter.setPen(appearance::text);
    // When the bars are too narrow for all names, only some are drawn.
    const auto step = static_cast<std::size_t>(std::max(1.0, std::ceil(minNameWidth / width)));
    const double room = width * static_cast<double>(step);
    const bool level = std::ranges::all_of(
        content_.names, [&](const QString& name) { return metrics.horizontalAdvance(name) + 4 < room; });
    for (std::size_t i = 0; i < marks.size() && i < content_.names.size(); i += step) {
        const double x = across(marks[i].x);
        if (x < plotArea_.left() || x > plotArea_.right()) continue;
        const QString& name = content_.names[i];
        if (level) {
            painter.drawText(QRectF(x - room / 2, plotArea_.bottom() + 4, room, 16), Qt::AlignCenter, name);
            continue;
        }
        painter.save();
        painter.translate(x, plotArea_.bottom() + 4);
        painter.rotate(-90);
        const int length = content_.nameSpace - nameGap;
        painter.drawText(QRectF(-length, -8, length, 16), Qt::AlignRight | Qt::AlignVCenter,
                         metrics.elidedText(name, Qt::ElideRight, length));
        painter.restore();
    }
}

}  // namespace controls::dataanalyser
