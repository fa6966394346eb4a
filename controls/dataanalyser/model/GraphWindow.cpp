#include "controls/dataanalyser/model/GraphWindow.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace controls::dataanalyser {

namespace {

constexpr double room = 0.04;
// Beyond these limits neighbouring numbers of an axis could not be told apart.
constexpr double maxMagnitude = 1e15;
constexpr double minPart = 1e-6;
constexpr double minLogarithmic = 1e-30;

AxisRange decades(double from, double to) {
    const double low = std::floor(std::log10(from) + 1e-9);
    const double high = std::max(std::ceil(std::log10(to) - 1e-9), low + 1);
    return {std::pow(10, low), std::pow(10, high), true};
}

AxisRange withRoom(double from, double to) {
    const double span = to > from ? to - from : std::max(std::abs(from) * 0.1, 1.0);
    const double low = from - span * room;
    const double high = to + span * room;
    return {from >= 0 && low < 0 ? 0 : low, to <= 0 && from < 0 && high > 0 ? 0 : high, false};
}

/// Removes or adds one decade, at the end that is farther from the place.
AxisRange zoomedByDecade(const AxisRange& range, double factor, double place, const AxisRange& whole) {
    AxisRange next = range;
    const bool atUpperEnd = place < 0.5;
    if (factor < 1 && range.to / range.from > 10.5) {
        (atUpperEnd ? next.to : next.from) *= atUpperEnd ? 0.1 : 10;
    } else if (factor > 1) {
        (atUpperEnd ? next.to : next.from) *= atUpperEnd ? 10 : 0.1;
        next.from = std::max(next.from, whole.from);
        next.to = std::min(next.to, whole.to);
        if (next == range) return whole;
    }
    return next;
}

}  // namespace

bool AxisRange::valid() const {
    if (!std::isfinite(from) || !std::isfinite(to) || from >= to) return false;
    return logarithmic ? from >= minLogarithmic : std::max(std::abs(from), std::abs(to)) <= maxMagnitude;
}

double AxisRange::place(double value) const {
    if (logarithmic) return std::log10(value / from) / std::log10(to / from);
    return (value - from) / span();
}

double AxisRange::at(double place) const {
    return logarithmic ? from * std::pow(to / from, place) : from + place * span();
}

AxisRange rangeOf(std::span<const double> values, bool logarithmic) {
    std::optional<std::pair<double, double>> ends;
    for (const double value : values) {
        if (!std::isfinite(value) || (logarithmic && value < minLogarithmic)) continue;
        if (!ends) ends = {value, value};
        ends = {std::min(ends->first, value), std::max(ends->second, value)};
    }
    if (!ends) return logarithmic ? AxisRange{1, 10, true} : AxisRange{0, 1, false};
    return logarithmic ? decades(ends->first, ends->second) : withRoom(ends->first, ends->second);
}

AxisRange zoomed(const AxisRange& range, double factor, double place, const AxisRange& whole) {
    if (range.logarithmic) return zoomedByDecade(range, factor, place, whole);
    const double span = std::clamp(range.span() * factor, whole.span() * minPart, whole.span());
    const double fixed = range.at(place);
    const double from = std::clamp(fixed - place * span, whole.from, whole.to - span);
    return {from, from + span, false};
}

AxisRange moved(const AxisRange& range, double part, const AxisRange& whole) {
    if (range.logarithmic) {
        const double factor = part > 0 ? 10 : 0.1;
        const AxisRange next{range.from * factor, range.to * factor, true};
        const bool inside = next.from > whole.from * 0.5 && next.to < whole.to * 2;
        return inside ? next : range;
    }
    const double from = std::clamp(range.from + part * range.span(), whole.from,
                                   std::max(whole.from, whole.to - range.span()));
    return {from, from + range.span(), false};
}

AxisRange partOf(const AxisRange& range, double fromPlace, double toPlace) {
    // A list: std::minmax of two temporary values would return references to them.
    const auto [low, high] = std::minmax({std::clamp(fromPlace, 0.0, 1.0), std::clamp(toPlace, 0.0, 1.0)});
    if (range.logarithmic) return decades(range.at(low), range.at(high));
    return {range.at(low), range.at(high), false};
}

int decadesPerTick(const AxisRange& range, int parts) {
    const double decades = std::log10(range.to / range.from);
    return std::max(1, static_cast<int>(std::ceil(decades / std::max(parts, 1) - 1e-9)));
}

int decimalsOfTick(double distance) {
    return std::clamp(static_cast<int>(-std::floor(std::log10(distance) + 1e-9)), 0, 12);
}

}  // namespace controls::dataanalyser
