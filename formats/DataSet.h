#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace formats {

/// What a column of a data set holds: words, chemical formulas, the words that rows are grouped by, or
/// numbers.
enum class DataColumnKind : std::uint8_t { text, formula, category, number };

/// One column of a data set. Texts are in code page 1253.
struct DataColumn {
    DataColumnKind kind = DataColumnKind::text;
    std::string title;
    std::string unit;                ///< empty when it has none
    std::vector<std::string> cells;  ///< one for each row; a number in the digits known, with decimal comma;
                                     ///< empty when it is not known
    std::vector<double> values;      ///< of a column of numbers one for each row, NaN when it is not known

    bool isNumber() const { return kind == DataColumnKind::number; }
};

/// A table of facts: rows of equally many cells.
struct DataSet {
    static constexpr std::size_t mostColumns = 32;
    /// Rows are named by 16-bit numbers.
    static constexpr std::size_t mostRows = 32767;

    std::int16_t number = 0;  ///< names the set for ever, 1 to 32767; 0 for one that comes from no file
    std::string title;
    std::string source;                ///< where the facts come from; may be empty
    std::vector<std::int16_t> rowIds;  ///< names of the rows, ascending: their places in the file, from 1
    std::vector<DataColumn> columns;
    std::optional<std::pair<std::size_t, std::size_t>> graph;  ///< the columns that a graph shows at first

    std::size_t rowCount() const { return rowIds.size(); }
};

}  // namespace formats
