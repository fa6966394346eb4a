#pragma once

#include <QWidget>
#include <functional>
#include <string_view>

class QPainter;

namespace controls::dataanalyser {

class Analyser;

/// The graph on the screen, as the rest of the component uses it.
class GraphPane {
  public:
    GraphPane() = default;
    virtual ~GraphPane() = default;
    GraphPane(const GraphPane&) = delete;
    GraphPane& operator=(const GraphPane&) = delete;

    virtual QWidget& widget() = 0;
    /// Draws the graph anew from the analyser's state.
    virtual void refresh() = 0;
    /// Makes the part that is shown wider by a factor, around its middle. 0 shows the whole graph.
    virtual void zoom(double factor) = 0;
    /// The number of rows that the graph leaves out.
    virtual int leftOut() const = 0;
};

/// The functions that draw graphs. They lie in a library of their own, because the charts that they need are
/// large and would delay the start of the program.
struct GraphParts {
    /// The version of the library. It must be that of the component.
    std::string_view version;
    /// Makes a graph, which belongs to its Qt parent. `copy` is called when the reader presses the keys for
    /// copying.
    GraphPane* (*makePane)(Analyser& analyser, std::function<void()> copy, QWidget* parent);
    /// Draws the graph on a page. `area` is in units of the painter; `unitsPerPixel` of them are one pixel of
    /// the screen.
    void (*paint)(Analyser& analyser, QPainter& painter, const QRectF& area, double unitsPerPixel);
};

/// Gets the functions when the first graph is to be drawn. Null when they cannot be loaded.
using GraphPartsSource = const GraphParts* (*)();

/// The functions in the library `kzdataangk-graphs.so`, which lies beside the component's module.
const GraphParts* loadGraphParts();

/// The name of the function that the library exports, a `GraphPartsSource`.
inline constexpr const char* graphPartsName = "KalyxoGraphParts";

}  // namespace controls::dataanalyser
