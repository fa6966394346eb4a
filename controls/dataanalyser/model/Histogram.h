#pragma once

#include <span>
#include <vector>

namespace controls::dataanalyser {

/// How many values lie between two numbers; the lower one belongs to it, of the last the upper one too.
struct HistogramBin {
    double from = 0;
    double to = 0;
    int count = 0;
    friend bool operator==(const HistogramBin&, const HistogramBin&) = default;
};

/// Parts values, which are finite and above zero when logarithmic, into bins of equal width with round
/// bounds: about as many as the square root of their number, 5 to 40. None for no values.
std::vector<HistogramBin> histogram(std::span<const double> values, bool logarithmic);

}  // namespace controls::dataanalyser
