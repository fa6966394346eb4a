#pragma once

#include <optional>
#include <span>

#include "controls/dataanalyser/model/TableCells.h"

namespace controls::dataanalyser {

/// The smallest, the largest and the mean value of a column among some rows.
struct Extremes {
    int smallest = 0;  ///< place in the data set of the first row with the smallest value
    int largest = 0;
    double mean = 0;  ///< in the unit shown
    friend bool operator==(const Extremes&, const Extremes&) = default;
};

/// Nothing when no row has a value in the column.
std::optional<Extremes> extremesOf(const formats::DataColumn& column, std::span<const int> rows,
                                   TemperatureUnit unit);

}  // namespace controls::dataanalyser
