#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace formats {

/// The content of a column: words, chemical formulas, the words by which rows are grouped, or numbers.
enum class DataColumnKind : std::uint8_t { text, formula, category, number };

/// One column of a data set. Texts are in code page 1253.
struct DataColumn {
    DataColumnKind kind = DataColumnKind::text;
    std::string title;
    std::string unit;                ///< empty when it has none
    std::vector<std::string> cells;  ///< one per row; a number with decimal comma; empty if unknown
    std::vector<double> values;      ///< for numbers only: one per row, NaN if unknown

    bool isNumber() const { return kind == DataColumnKind::number; }
};

/// A table of facts. All rows have the same number of cells.
struct DataSet {
    static constexpr std::size_t maxColumns = 32;
    /// Rows have ids of 16 bits.
    static constexpr std::size_t maxRows = 32767;

    std::int16_t number = 0;  ///< the set's id, which never changes: 1 to 32767; 0 if it comes from no file
    std::string title;
    std::string source;                ///< the source of the facts; may be empty
    std::vector<std::int16_t> rowIds;  ///< ids of the rows, ascending: their places in the file, from 1
    std::vector<DataColumn> columns;
    std::optional<std::pair<std::size_t, std::size_t>> graph;  ///< the columns of the first graph

    std::size_t rowCount() const { return rowIds.size(); }
};

}  // namespace formats
