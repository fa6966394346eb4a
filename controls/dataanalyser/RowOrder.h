#pragma once

#include <optional>
#include <vector>

#include "controls/common/Element.h"
#include "controls/dataanalyser/Column.h"

namespace controls::dataanalyser {

/// Which elements are listed and in which order.
struct RowOrder {
    Column column = Column::number;
    bool descending = false;
    std::optional<Family> family;  ///< nothing lists all elements
    friend bool operator==(const RowOrder&, const RowOrder&) = default;
};

/// The atomic numbers of the rows from the top. What is not known stands last in either direction; rows that
/// are alike stand by atomic number. Names are in the order of the Greek alphabet, accents aside.
std::vector<int> orderedRows(const RowOrder& order);

}  // namespace controls::dataanalyser
