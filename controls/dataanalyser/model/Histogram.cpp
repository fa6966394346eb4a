#include "controls/dataanalyser/model/Histogram.h"

#include <algorithm>
#include <cmath>

#include "controls/elements/NumberText.h"

namespace controls::dataanalyser {

namespace {

constexpr int minBins = 5;
constexpr int maxBins = 40;

int binsFor(std::size_t values) {
    return std::clamp(static_cast<int>(std::lround(std::sqrt(static_cast<double>(values)))), minBins,
                      maxBins);
}

}  // namespace

std::vector<HistogramBin> histogram(std::span<const double> values, bool logarithmic) {
    if (values.empty()) return {};
    const auto scaled = [logarithmic](double value) { return logarithmic ? std::log10(value) : value; };
    const auto [min, max] = std::ranges::minmax(values);
    const double span = scaled(max) - scaled(min);
    // Values that are all the same get a bin of width 1.
    const double minSpan = std::max(std::abs(scaled(max)) * 1e-9, 1e-12);
    const double width = span > minSpan ? tickDistance(span, binsFor(values.size())) : 1;
    const double first = std::floor(scaled(min) / width + 1e-9);
    const double last = std::max(std::ceil(scaled(max) / width - 1e-9), first + 1);
    std::vector<HistogramBin> bins;
    const auto count = static_cast<int>(std::lround(last - first));
    for (int i = 0; i < count; ++i) {
        const double from = (first + i) * width;
        const double to = (first + i + 1) * width;
        bins.push_back({logarithmic ? std::pow(10, from) : from, logarithmic ? std::pow(10, to) : to, 0});
    }
    for (const double value : values) {
        const double place = std::floor(scaled(value) / width + 1e-9) - first;
        const auto index = std::clamp(place, 0.0, static_cast<double>(bins.size() - 1));
        ++bins[static_cast<std::size_t>(index)].count;
    }
    return bins;
}

}  // namespace controls::dataanalyser
