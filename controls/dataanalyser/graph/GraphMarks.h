#pragma once

#include <QGraphicsItem>
#include <set>
#include <vector>

#include "controls/dataanalyser/look/CategoryLook.h"
#include "controls/dataanalyser/model/Graph.h"

namespace controls::dataanalyser {

/// What `GraphMarks` draws.
struct GraphScenery {
    Graph graph;
    GraphWindow window;                    ///< the part of the graph on show
    std::vector<CategoryLook> categories;  ///< one for each category
    std::set<int> selected;                ///< rows, by place
    std::vector<QString> names;            ///< under a bar graph, one for each mark
    int nameSpace = 0;                     ///< below the axis, in pixels
};

/// The points or bars of a graph, all in one: ten thousand graphics items would be slow.
class GraphMarks : public QGraphicsItem {
  public:
    explicit GraphMarks(QGraphicsItem* parent);

    void setScenery(GraphScenery scenery);
    const GraphScenery& scenery() const { return scenery_; }
    /// Where on the chart the plane lies.
    void setPlotArea(const QRectF& area);
    const QRectF& plotArea() const { return plotArea_; }

    /// The place of a mark on the chart: that of a point, or the middle of the end of a bar.
    QPointF place(const GraphMark& mark) const;
    /// The index of the mark at a place of the chart: the nearest point within reach, or the bar there; −1
    /// for none.
    int markAt(const QPointF& position) const;

    QRectF boundingRect() const override;
    void paint(QPainter* painter, const QStyleOptionGraphicsItem* option, QWidget* widget) override;

    /// The space for names under the axis of a bar graph in a chart of this height, all in pixels.
    static int spaceFor(const std::vector<QString>& names, double height);

  private:
    double across(double x) const;
    double down(double y) const;
    QRectF barOf(const GraphMark& mark) const;
    CategoryLook lookOf(const GraphMark& mark) const;
    void paintPoints(QPainter& painter, const QRectF& exposed) const;
    void paintBars(QPainter& painter) const;
    void paintNames(QPainter& painter) const;

    GraphScenery scenery_;
    QRectF plotArea_;
};

}  // namespace controls::dataanalyser
