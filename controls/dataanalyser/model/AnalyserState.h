#pragma once

#include <array>
#include <cstdint>
#include <vector>

#include "controls/dataanalyser/model/ColumnLayout.h"
#include "controls/dataanalyser/model/Graph.h"
#include "controls/dataanalyser/model/TableCells.h"

namespace controls::dataanalyser {

/// The words that name entries of the state. A word below `categoryWord` is the place of a column. The words
/// are kept in bookmarks.
inline constexpr std::int32_t categoryWord = 1000;
inline constexpr std::int32_t graphXWord = 1001;
inline constexpr std::int32_t graphYWord = 1002;
inline constexpr std::int32_t graphOptionsWord = 1003;
inline constexpr std::int32_t windowLeftWord = 1004;
inline constexpr std::int32_t windowRightWord = 1005;
inline constexpr std::int32_t windowBottomWord = 1006;
inline constexpr std::int32_t windowTopWord = 1007;
inline constexpr std::int32_t firstRowWord = 1008;
inline constexpr std::int32_t lastRowWord = 1009;

/// What the reader has chosen in one data set. A host may set any numbers, also columns and categories that
/// the data set does not have; `Analyser` gives them a meaning.
struct DataSetState {
    /// Stands for the column that the data set proposes.
    static constexpr std::int32_t proposed = -1;

    std::int32_t category = 0;
    std::int32_t firstRow = 0;  ///< id of the first row listed, 0 for no bound; the same for the last
    std::int32_t lastRow = 0;
    std::int32_t graphX = proposed;
    std::int32_t graphY = proposed;
    bool logX = false;
    bool logY = false;
    bool bestFit = false;
    bool names = false;
    std::array<float, 4> window{};  ///< left, right, bottom, top; all 0 for the whole graph
    ColumnLayout layout;
    std::vector<std::int16_t> selected;  ///< ids of rows
    std::int32_t cursor = 0;             ///< id of a row, 0 for none
    std::int16_t top = 0;                ///< id of the topmost row shown, 0 for the first row
};

/// The analyser's whole state.
struct AnalyserState {
    std::int16_t dataSet = 0;
    bool graphShown = false;
    std::int16_t sortColumn = -1;  ///< −1 for the order of the data set
    bool descending = false;
    TemperatureUnit unit = TemperatureUnit::celsius;
    GraphKind graphKind = GraphKind::scatter;
    DataSetState set;
};

}  // namespace controls::dataanalyser
