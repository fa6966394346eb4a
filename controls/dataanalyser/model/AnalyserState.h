#pragma once

#include <array>
#include <cstdint>
#include <vector>

#include "controls/dataanalyser/model/ColumnLayout.h"
#include "controls/dataanalyser/model/Graph.h"
#include "controls/dataanalyser/model/TableCells.h"

namespace controls::dataanalyser {

/// What the reader has chosen in one data set. Columns and categories may be ones that the set does not have,
/// as a host may put anything; `Analyser` tells what they come to.
struct DataSetState {
    /// No column: the one that the set proposes.
    static constexpr std::int32_t proposed = -1;

    std::int32_t category = 0;
    std::int32_t graphX = proposed;
    std::int32_t graphY = proposed;
    bool logX = false;
    bool logY = false;
    bool bestFit = false;
    std::array<float, 4> window{};  ///< left, right, bottom, top; all 0 for the whole graph
    ColumnLayout layout;
    std::vector<std::int16_t> selected;  ///< ids of rows
    std::int32_t cursor = 0;             ///< id of a row, 0 for none
    std::int16_t top = 0;                ///< id of the first row on show, 0 for the first there is
};

/// The analyser's whole state.
struct AnalyserState {
    std::int16_t dataSet = 0;
    bool graphShown = false;
    std::int16_t sortColumn = -1;  ///< −1 for the set's own order
    bool descending = false;
    TemperatureUnit unit = TemperatureUnit::celsius;
    GraphKind graphKind = GraphKind::scatter;
    DataSetState set;
};

}  // namespace controls::dataanalyser
