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

/// Which graph to make of a data set.
struct GraphPlan {
    GraphKind kind = GraphKind::scatter;
    std::size_t x = 0;  ///< a column of numbers; only for a scatter or line graph
    std::size_t y = 0;  ///< a column of numbers; that of a histogram lies on its horizontal axis
    bool logX = false;
    bool logY = false;     ///< goes with the column `y`, in a histogram too
    bool bestFit = false;  ///< only for a scatter or line graph
    bool names = false;    ///< points have their names beside them

    bool hasPoints() const { return kind == GraphKind::scatter || kind == GraphKind::line; }
    bool acrossIsLogarithmic() const {
        return kind == GraphKind::histogram ? logY : logX && kind != GraphKind::bar;
    }
    bool upIsLogarithmic() const { return logY && kind != GraphKind::histogram; }
    friend bool operator==(const GraphPlan&, const GraphPlan&) = default;
};

/// A point or a bar of a graph. A point lies at `x`, `y`. A bar goes from `left` to `right` and up to `y`.
struct GraphMark {
    double x = 0;
    double y = 0;
    double left = 0;
    double right = 0;
    int row = -1;       ///< place in the data set, −1 for a bar of a histogram
    int category = -1;  ///< index into the categories, −1 for none
};

/// A graph in numbers.
struct Graph {
    GraphPlan plan;
    std::vector<GraphMark> marks;  ///< in a line graph sorted by x
    int leftOut = 0;               ///< the number of rows without a value that the axes can show
    GraphWindow whole;             ///< the window that shows all marks
    std::string xTitle;            ///< code page 1253, with unit; of bars, how they are ordered
    std::string yTitle;
    std::optional<BestFit> fit;  ///< computed from the logarithms of a logarithmic axis

    /// The y value of the best-fit line at an x value.
    double fitted(double x) const;
    /// The categories that its marks belong to.
    std::set<int> categories() const;
};

/// Makes the graph of some rows, which stand in the given order.
Graph makeGraph(const formats::DataSet& set, const Categories& categories, std::span<const int> rows,
                const RowOrder& order, const GraphPlan& plan, TemperatureUnit unit);

}  // namespace controls::dataanalyser
