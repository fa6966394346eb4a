#pragma once

#include <QChart>
#include <QStringList>

class QXYSeries;

namespace controls::dataanalyser {

class Analyser;
class GraphHover;
class GraphMarks;
struct AxisRange;
struct Graph;
struct GraphWindow;

/// The graph that the analyser tells of, as a chart: axes, lines and legend are Qt Charts' own, points and
/// bars are `GraphMarks`.
class GraphChart : public QChart {
  public:
    GraphChart();

    /// Draws everything anew.
    void showGraph(const Analyser& analyser);
    const GraphMarks& marks() const { return *marks_; }

    /// Shows the name of a mark by its index; −1 for none.
    void setHovered(int index);
    int hovered() const { return hovered_; }
    /// The row of the mark hovered, −1 for none.
    int hoveredRow() const;
    /// The words beside the mark hovered; empty for none.
    QStringList hoverLines() const;

  private:
    void setAxes(const Graph& graph, const AxisRange& x, const AxisRange& y);
    void addLegendEntries(const Analyser& analyser, const Graph& graph);
    void addLines(const Graph& graph, const GraphWindow& window);
    void addSeries(QXYSeries& series);
    void placeMarks();
    QStringList linesOf(int index) const;

    // Theirs is the chart, as it is of all series and axes.
    GraphMarks* marks_;
    GraphHover* hover_;
    const Analyser* analyser_ = nullptr;
    int hovered_ = -1;
    int shownSet_ = -1;
};

}  // namespace controls::dataanalyser
