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

/// The graph of the analyser as a chart. Qt Charts draws axes, lines and legend; `GraphMarks` draws points
/// and bars.
class GraphChart : public QChart {
  public:
    GraphChart();

    /// Draws the graph anew.
    void showGraph(const Analyser& analyser);
    const GraphMarks& marks() const { return *marks_; }

    /// Marks a point or bar as hovered and shows its label; −1 for none.
    void setHovered(int index);
    int hovered() const { return hovered_; }
    /// The row of the hovered mark, −1 for none.
    int hoveredRow() const;
    /// The lines of the label, empty when nothing is hovered.
    QStringList hoverLines() const;

  private:
    void setAxes(const Graph& graph, const AxisRange& x, const AxisRange& y);
    void addLegendEntries(const Analyser& analyser, const Graph& graph);
    void addLines(const Graph& graph, const GraphWindow& window);
    void addSeries(QXYSeries& series);
    void addToTitle(const QString& words);
    void placeMarks();
    QStringList linesOf(int index) const;

    // The chart is their Qt parent and owns them, like all series and axes.
    GraphMarks* marks_;
    GraphHover* hover_;
    const Analyser* analyser_ = nullptr;
    int hovered_ = -1;
    int shownSet_ = -1;
};

}  // namespace controls::dataanalyser
