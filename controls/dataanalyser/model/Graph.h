#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <set>
#include <span>
#include <string>
#include <vector>

#include "controls/dataanalyser/model/BestFit.h"
#include "controls/dataanalyser/model/GraphWindow.h"
#include "controls/dataanalyser/model/RowOrder.h"
#include "controls/dataanalyser/model/TableCells.h"

namespace controls::dataanalyser {

/// The kinds of graph; the codes are kept in bookmarks.
enum class GraphKind : std::uint8_t { scatter, line, bar, histogram };
inline constexpr int graphKindCount = 4;

/// What a graph is to show of a data set.
struct GraphPlan {
    GraphKind kind = GraphKind::scatter;
    std::size_t x = 0;  ///< a column of numbers; a bar graph has the rows there
    std::size_t y = 0;  ///< a column of numbers; a histogram has counts there
    bool logX = false;  ///< has no meaning for a bar graph
    bool logY = false;
    bool bestFit = false;  ///< of a scatter or line graph

    bool hasPoints() const { return kind == GraphKind::scatter || kind == GraphKind::line; }
    bool xIsLogarithmic() const { return logX && kind != GraphKind::bar; }
    friend bool operator==(const GraphPlan&, const GraphPlan&) = default;
};

/// A point or bar of a graph. A bar reaches from `left` to `right` and up to `y`; a point stands at `x`, `y`.
struct GraphMark {
    double x = 0;
    double y = 0;
    double left = 0;
    double right = 0;
    int row = -1;       ///< place in the data set, −1 for a histogram's bar
    int category = -1;  ///< index into the categories, −1 for none
};

/// A graph in numbers.
struct Graph {
    GraphPlan plan;
    std::vector<GraphMark> marks;  ///< of a line graph from left to right
    int leftOut = 0;               ///< rows without a number that the axes can show
    GraphWindow whole;             ///< a window that shows all marks
    std::string xTitle;            ///< code page 1253, with unit
    std::string yTitle;
    std::optional<BestFit> fit;  ///< in the logarithms where an axis is logarithmic

    /// The value of the best-fit line at a number of the x axis.
    double fitted(double x) const;
    /// Those of its marks.
    std::set<int> categories() const;
};

/// The graph of these rows.
Graph makeGraph(const formats::DataSet& set, const Categories& categories, std::span<const int> rows,
                const GraphPlan& plan, TemperatureUnit unit);

}  // namespace controls::dataanalyser
