#include "controls/dataanalyser/graph/GraphView.h"

#include <QGraphicsLayout>
#include <QKeyEvent>
#include <QRubberBand>
#include <cmath>
#include <utility>

#include "controls/common/Appearance.h"
#include "controls/common/Version.h"
#include "controls/dataanalyser/graph/GraphChart.h"
#include "controls/dataanalyser/graph/GraphMarks.h"
#include "controls/dataanalyser/graph/LinkedGraphParts.h"
#include "controls/dataanalyser/model/Analyser.h"

namespace controls::dataanalyser {

namespace {

constexpr double keyFactor = 0.7;
constexpr double wheelFactor = 0.8;
constexpr double wheelStep = 120;
constexpr double keyMove = 0.2;
constexpr int minFrame = 8;

}  // namespace

GraphView::GraphView(Analyser& analyser, std::function<void()> copy, QWidget* parent)
    : QChartView(new GraphChart(),
                 parent),  // NOLINT(cppcoreguidelines-owning-memory): the view owns its chart
      analyser_(analyser),
      copy_(std::move(copy)),
      chart_(static_cast<GraphChart*>(chart())),
      frame_(new QRubberBand(QRubberBand::Rectangle, this)) {
    setRenderHint(QPainter::Antialiasing);
    setFrameShape(NoFrame);
    setBackgroundBrush(appearance::paper);
    setMouseTracking(true);
    setFocusPolicy(Qt::StrongFocus);
    setViewportUpdateMode(MinimalViewportUpdate);
    for (QWidget* const widget : {static_cast<QWidget*>(this), viewport()}) {
        widget->setAccessibleName(QStringLiteral("Γράφημα"));
    }
}

void GraphView::refresh() { chart_->showGraph(analyser_); }

int GraphView::leftOut() const { return chart_->marks().content().graph.leftOut; }

GraphWindow GraphView::window() const { return chart_->marks().content().window; }

const GraphWindow& GraphView::whole() const { return chart_->marks().content().graph.whole; }

QPointF GraphView::placeOn(const QPointF& position) const {
    const QRectF& area = chart_->marks().plotArea();
    const QPointF at = chart_->mapFromScene(mapToScene(position.toPoint()));
    return {(at.x() - area.left()) / area.width(), (area.bottom() - at.y()) / area.height()};
}

void GraphView::zoom(double factor) {
    if (factor == 0) return analyser_.setWindow(std::nullopt);
    zoomAbout(factor, {0.5, 0.5});
}

void GraphView::zoomAbout(double factor, const QPointF& place) {
    const GraphWindow now = window();
    // Bars keep their feet: zooming in changes only the horizontal axis of a bar graph.
    const bool upright = chart_->marks().content().graph.plan.hasPoints() || factor > 1;
    const GraphWindow next{zoomed(now.x, factor, place.x(), whole().x),
                           upright ? zoomed(now.y, factor, place.y(), whole().y) : now.y};
    analyser_.setWindow(next == whole() ? std::nullopt : std::optional(next));
}

void GraphView::zoomInto(const QRect& frame) {
    const QPointF from = placeOn(frame.bottomLeft());
    const QPointF to = placeOn(frame.topRight());
    const GraphWindow now = window();
    const GraphWindow next{partOf(now.x, from.x(), to.x()), partOf(now.y, from.y(), to.y())};
    if (next.valid()) analyser_.setWindow(next);
}

void GraphView::move(double across, double up) {
    GraphWindow next = window();
    if (across != 0) next.x = moved(next.x, across, whole().x);
    if (up != 0) next.y = moved(next.y, up, whole().y);
    analyser_.setWindow(next);
}

void GraphView::step(int by) {
    const auto count = static_cast<int>(chart_->marks().content().graph.marks.size());
    if (count == 0) return;
    chart_->setHovered((std::max(chart_->hovered() + by, by > 0 ? 0 : -1) + count) % count);
    setAccessibleDescription(chart_->hoverLines().join(QStringLiteral(", ")));
}

void GraphView::chooseHovered(bool toggle) {
    const int row = chart_->hoveredRow();
    // The analyser may already have another data set, a moment before the chart shows it.
    if (row < 0 || static_cast<std::size_t>(row) >= analyser_.dataSet().rowCount()) return;
    const std::int16_t id = analyser_.idAt(row);
    auto ids = toggle ? analyser_.selected() : std::vector<std::int16_t>();
    if (std::erase(ids, id) == 0) ids.push_back(id);
    analyser_.noteCursor(id);
    analyser_.noteTop(id);
    analyser_.setSelected(ids);
}

void GraphView::resizeEvent(QResizeEvent* event) {
    QChartView::resizeEvent(event);
    refresh();
}

void GraphView::mousePressEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton) return;
    pressed_ = event->position().toPoint();
}

void GraphView::mouseMoveEvent(QMouseEvent* event) {
    const QPoint at = event->position().toPoint();
    if (pressed_ && (event->buttons() & Qt::LeftButton)) {
        const QRect frame = QRect(*pressed_, at).normalized();
        frame_->setGeometry(frame);
        frame_->setVisible(std::max(frame.width(), frame.height()) > minFrame);
        return;
    }
    chart_->setHovered(chart_->marks().markAt(chart_->mapFromScene(mapToScene(at))));
}

void GraphView::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton || !pressed_) return;
    const QRect frame = QRect(*pressed_, event->position().toPoint()).normalized();
    pressed_.reset();
    frame_->hide();
    if (frame.width() > minFrame && frame.height() > minFrame) return zoomInto(frame);
    chart_->setHovered(chart_->marks().markAt(chart_->mapFromScene(mapToScene(frame.center()))));
    chooseHovered((event->modifiers() & Qt::ControlModifier) != 0);
}

void GraphView::mouseDoubleClickEvent(QMouseEvent*) { zoom(0); }

void GraphView::wheelEvent(QWheelEvent* event) {
    if (event->angleDelta().y() == 0) return;
    zoomAbout(std::pow(wheelFactor, event->angleDelta().y() / wheelStep), placeOn(event->position()));
    event->accept();
}

bool GraphView::zoomByKey(int key) {
    switch (key) {
        case Qt::Key_Plus:
        case Qt::Key_Equal:
            zoom(keyFactor);
            return true;
        case Qt::Key_Minus:
            zoom(1 / keyFactor);
            return true;
        case Qt::Key_Home:
        case Qt::Key_0:
        case Qt::Key_Escape:
            zoom(0);
            return true;
        default:
            return false;
    }
}

bool GraphView::moveByKey(const QKeyEvent& event) {
    const bool byMark = !(event.modifiers() & Qt::ShiftModifier);
    switch (event.key()) {
        case Qt::Key_Right:
            byMark ? step(1) : move(keyMove, 0);
            return true;
        case Qt::Key_Left:
            byMark ? step(-1) : move(-keyMove, 0);
            return true;
        case Qt::Key_Up:
            move(0, keyMove);
            return true;
        case Qt::Key_Down:
            move(0, -keyMove);
            return true;
        default:
            return false;
    }
}

void GraphView::keyPressEvent(QKeyEvent* event) {
    if (event->matches(QKeySequence::Copy)) return copy_();
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter || event->key() == Qt::Key_Space) {
        return chooseHovered((event->modifiers() & Qt::ControlModifier) != 0);
    }
    if (!zoomByKey(event->key()) && !moveByKey(*event)) QChartView::keyPressEvent(event);
}

void GraphView::leaveEvent(QEvent* event) {
    QChartView::leaveEvent(event);
    chart_->setHovered(-1);
}

namespace {

GraphPane* makePane(Analyser& analyser, std::function<void()> copy, QWidget* parent) {
    // NOLINTNEXTLINE(cppcoreguidelines-owning-memory): its Qt parent owns it
    return new GraphView(analyser, std::move(copy), parent);
}

void paintGraph(Analyser& analyser, QPainter& painter, const QRectF& area, double unitsPerPixel) {
    GraphView view(analyser, [] {}, nullptr);
    view.resize((area.size() / unitsPerPixel).toSize());
    GraphChart& chart = view.graphChart();
    chart.resize(view.size());
    view.refresh();
    chart.layout()->activate();
    view.scene()->render(&painter, area, QRectF(QPointF(), QSizeF(view.size())), Qt::KeepAspectRatio);
}

}  // namespace

const GraphParts* linkedGraphParts() {
    static const GraphParts parts{controls::version, makePane, paintGraph};
    return &parts;
}

}  // namespace controls::dataanalyser
