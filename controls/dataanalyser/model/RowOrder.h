#pragma once

#include <cstddef>
#include <limits>
#include <optional>
#include <string>
#include <vector>

#include "formats/DataSet.h"

namespace controls::dataanalyser {

/// The groups that the rows of a data set belong to.
struct Categories {
    std::vector<std::string> names;  ///< in order of appearance; empty when the data set has no categories
    std::vector<int> ofRow;          ///< for each row an index into `names`, −1 for none
};

/// The categories of a data set; none when it has no column of them.
Categories categoriesOf(const formats::DataSet& set);

/// Which rows of a data set are listed and in which order.
struct RowOrder {
    std::optional<std::size_t> column;  ///< nothing for the order of the data set
    bool descending = false;
    int category = 0;  ///< from 1, 0 for all rows
    int first = 0;     ///< places in the data set; rows before the first and behind the last are left out
    int last = std::numeric_limits<int>::max();
    friend bool operator==(const RowOrder&, const RowOrder&) = default;
};

/// The rows from the top, by their places in the data set. Unknown values come last in either direction. Rows
/// with equal values keep the order of the data set. Words are sorted alphabetically without regard to
/// accents.
std::vector<int> orderedRows(const formats::DataSet& set, const Categories& categories,
                             const RowOrder& order);

/// What the rows are sorted by, in words for the reader (code page 1253); empty for the order of the data
/// set.
std::string orderWords(const formats::DataSet& set, const RowOrder& order);

}  // namespace controls::dataanalyser
