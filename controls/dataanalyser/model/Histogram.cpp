#include "controls/dataanalyser/model/Histogram.h"

#include <algorithm>
#include <cmath>

#include "controls/dataanalyser/model/GraphWindow.h"

namespace controls::dataanalyser {

namespace {

constexpr int fewestBins = 5;
constexpr int mostBins = 40;

int binsFor(std::size_t values) {
    return std::clamp(static_cast<int>(std::lround(std::sqrt(static_cast<double>(values)))), fewestBins,
                      mostBins);
}

}  // namespace

std::vector<HistogramBin> histogram(std::span<const double> values, bool logarithmic) {
    if (values.empty()) return {};
    const auto scaled = [logarithmic](double value) { return logarithmic ? std::log10(value) : value; };
    const auto [least, most] = std::ranges::minmax(values);
    const double span = scaled(most) - scaled(least);
    // Values that are all alike fill one bin of their own.
    const double smallest = std::max(std::abs(scaled(most)) * 1e-9, 1e-12);
    const double width = span > smallest ? tickDistance(span, binsFor(values.size())) : 1;
    const double first = std::floor(scaled(least) / width + 1e-9);
    const double last = std::max(std::ceil(scaled(most) / width - 1e-9), first + 1);
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
