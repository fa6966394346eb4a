#pragma once

#include <QWidget>
#include <functional>
#include <string_view>

class QPainter;

namespace controls::dataanalyser {

class Analyser;

/// The graph on the screen, as the rest of the component sees it.
class GraphPane {
  public:
    GraphPane() = default;
    virtual ~GraphPane() = default;
    GraphPane(const GraphPane&) = delete;
    GraphPane& operator=(const GraphPane&) = delete;

    virtual QWidget& widget() = 0;
    /// Draws everything anew.
    virtual void refresh() = 0;
    /// Shows a part that is wider by the factor, about the middle; 0 shows the whole graph.
    virtual void zoom(double factor) = 0;
    /// How many rows the graph on show has left out.
    virtual int leftOut() const = 0;
};

/// What draws graphs. It lies in a library of its own, for the charts that it needs are large and a program
/// that shows no graph is not to wait for them.
struct GraphParts {
    /// That of the component; the two belong together.
    std::string_view version;
    /// Makes a graph that belongs to its Qt parent; `copy` is called when the reader asks to copy it by key.
    GraphPane* (*makePane)(Analyser& analyser, std::function<void()> copy, QWidget* parent);
    /// Draws it on a page; `area` is in the painter's own units, `unitsPerPixel` how many of them a pixel of
    /// the screen is to take.
    void (*paint)(Analyser& analyser, QPainter& painter, const QRectF& area, double unitsPerPixel);
};

/// Gets the parts when the first graph is to be drawn; null when they are not there.
using GraphPartsSource = const GraphParts* (*)();

/// The parts in the program or library that calls this, which is linked with them.
const GraphParts* linkedGraphParts();

/// Those in the file `kzdataangk-graphs.so` beside the component's module.
const GraphParts* loadGraphParts();

/// The function that the file exports.
inline constexpr const char* graphPartsName = "KalyxoGraphParts";

}  // namespace controls::dataanalyser
