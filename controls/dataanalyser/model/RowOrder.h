#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include "formats/DataSet.h"

namespace controls::dataanalyser {

/// The groups that a data set's rows belong to.
struct Categories {
    std::vector<std::string> names;  ///< in the order of the rows; none when the set has no such column
    std::vector<int> ofRow;          ///< for each row an index into `names`, −1 for none
};
Categories categoriesOf(const formats::DataSet& set);

/// Which rows of a data set are listed and in which order.
struct RowOrder {
    std::optional<std::size_t> column;  ///< nothing keeps the set's own order
    bool descending = false;
    int category = 0;  ///< 1 is the first, 0 lists all rows
    friend bool operator==(const RowOrder&, const RowOrder&) = default;
};

/// The rows from the top, by their places in the set. What is not known stands last in either direction; rows
/// that are alike stay in the set's order. Words are in alphabetical order, accents aside.
std::vector<int> orderedRows(const formats::DataSet& set, const Categories& categories,
                             const RowOrder& order);

}  // namespace controls::dataanalyser
