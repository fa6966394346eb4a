#pragma once

#include <QGraphicsItem>
#include <set>
#include <vector>

#include "controls/dataanalyser/look/CategoryLook.h"
#include "controls/dataanalyser/model/Graph.h"

namespace controls::dataanalyser {

/// What `GraphMarks` draws.
struct GraphContent {
    Graph graph;
    GraphWindow window;                    ///< the part of the graph that is shown
    std::vector<CategoryLook> categories;  ///< the look of each category
    std::set<int> selected;                ///< the selected rows, by their places in the data set
    std::vector<QString> names;            ///< of each mark, under the bars or beside the points; or none
    int nameSpace = 0;                     ///< the height of the names below the axis, in pixels
};

/// All points or bars of a graph. They are one graphics item, because ten thousand items would be slow.
class GraphMarks : public QGraphicsItem {
  public:
    explicit GraphMarks(QGraphicsItem* parent);

    void setContent(GraphContent content);
    const GraphContent& content() const { return content_; }
    /// The area of the chart between its axes.
    void setPlotArea(const QRectF& area);
    const QRectF& plotArea() const { return plotArea_; }

    /// The place of a mark on the chart: a point itself, or the middle of the upper end of a bar.
    QPointF place(const GraphMark& mark) const;
    /// The index of the nearest point within reach of a place of the chart, or of the bar there; −1 for none.
    int markAt(const QPointF& position) const;

    QRectF boundingRect() const override;
    void paint(QPainter* painter, const QStyleOptionGraphicsItem* option, QWidget* widget) override;

    /// The height in pixels that names under a bar graph need, in a chart of this height.
    static int spaceFor(const std::vector<QString>& names, double height);

  private:
    double across(double x) const;
    double down(double y) const;
    QRectF barOf(const GraphMark& mark) const;
    CategoryLook lookOf(const GraphMark& mark) const;
    void paintPoints(QPainter& painter, const QRectF& exposed) const;
    void paintBars(QPainter& painter) const;
    void paintNames(QPainter& painter) const;
    void paintPointNames(QPainter& painter, const QRectF& exposed) const;

    GraphContent content_;
    QRectF plotArea_;
};

}  // namespace controls::dataanalyser
