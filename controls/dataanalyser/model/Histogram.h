#pragma once

#include <span>
#include <vector>

namespace controls::dataanalyser {

/// The number of values from `from` up to, but not including, `to`. The last bin includes its `to`.
struct HistogramBin {
    double from = 0;
    double to = 0;
    int count = 0;
    friend bool operator==(const HistogramBin&, const HistogramBin&) = default;
};

/// Sorts values into bins of equal width with round bounds. There are about as many bins as the square root
/// of the number of values, from 5 to 40; none when there are no values. Values must be finite, and above
/// zero when logarithmic.
std::vector<HistogramBin> histogram(std::span<const double> values, bool logarithmic);

}  // namespace controls::dataanalyser
