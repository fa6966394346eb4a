#pragma once

#include <QChartView>
#include <functional>
#include <optional>

#include "controls/dataanalyser/look/GraphParts.h"

class QRubberBand;

namespace controls::dataanalyser {

class Analyser;
class GraphChart;
struct GraphWindow;

/// The graph on the screen. It shows the names of points under the pointer and zooms by wheel, mouse and
/// keys.
class GraphView : public QChartView, public GraphPane {
  public:
    /// `copy` is called when the reader presses the keys for copying.
    GraphView(Analyser& analyser, std::function<void()> copy, QWidget* parent);

    QWidget& widget() override { return *this; }
    void refresh() override;
    void zoom(double factor) override;
    int leftOut() const override;

    GraphChart& graphChart() { return *chart_; }

  protected:
    void resizeEvent(QResizeEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void leaveEvent(QEvent* event) override;

  private:
    GraphWindow window() const;
    const GraphWindow& whole() const;
    QPointF placeOn(const QPointF& position) const;
    void zoomAbout(double factor, const QPointF& place);
    void zoomInto(const QRect& frame);
    void move(double across, double up);
    void step(int by);
    void chooseHovered(bool toggle);
    bool zoomByKey(int key);
    bool moveByKey(const QKeyEvent& event);

    Analyser& analyser_;
    std::function<void()> copy_;
    GraphChart* chart_;
    QRubberBand* frame_;
    std::optional<QPoint> pressed_;
};

}  // namespace controls::dataanalyser
