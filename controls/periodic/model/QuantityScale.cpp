#include "controls/periodic/model/QuantityScale.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "controls/elements/NumberText.h"

namespace controls::periodic {

namespace {

struct Ends {
    double low;
    double high;
};

/// Both scales cover the values of all elements, except for the tiny abundances of elements that exist only
/// as products of decay.
struct Scales {
    Ends linear;
    Ends logarithmic;
    bool usuallyLogarithmic;
};

// In the order of the quantities.
constexpr std::array<Scales, quantityCount> scales{{
    {{0.5, 4}, {0.5, 4}, false},
    {{0, 275}, {25, 300}, false},
    {{300, 2400}, {300, 2500}, false},
    {{0, 24}, {5e-5, 50}, false},
    {{0, 5000}, {0.5, 5000}, false},
    {{0, 6000}, {3, 6000}, false},
    {{1650, 2010}, {1650, 2010}, false},
    {{0, 500000}, {1e-4, 1e6}, true},
    {{0, 350}, {0, 350}, false},
    {{100, 350}, {100, 500}, false},
}};

constexpr int wantedTicks = 6;
constexpr double fewDecades = 2;

}  // namespace

QuantityScale::QuantityScale(Quantity quantity, bool other) {
    const Scales& both = scales[static_cast<std::size_t>(quantity)];
    logarithmic_ = both.usuallyLogarithmic != (other && hasBothScales(quantity));
    const Ends& ends = logarithmic_ ? both.logarithmic : both.linear;
    low_ = ends.low;
    high_ = ends.high;
}

double QuantityScale::position(double value) const {
    const double inside = std::clamp(value, low_, high_);
    if (logarithmic_) return std::log(inside / low_) / std::log(high_ / low_);
    return (inside - low_) / (high_ - low_);
}

std::vector<double> QuantityScale::ticks() const { return logarithmic_ ? decades() : linearTicks(); }

std::vector<double> QuantityScale::linearTicks() const {
    const double step = tickDistance(high_ - low_, wantedTicks);
    const auto first = static_cast<int>(std::ceil(low_ / step));
    const auto last = static_cast<int>(std::floor(high_ / step));
    std::vector<double> ticks;
    for (int i = first; i <= last; ++i) ticks.push_back(i * step);
    return ticks;
}

std::vector<double> QuantityScale::decades() const {
    const bool fine = std::log10(high_ / low_) < fewDecades;
    std::vector<double> ticks;
    for (auto power = static_cast<int>(std::floor(std::log10(low_))); std::pow(10, power) <= high_; ++power) {
        for (const double factor : {1.0, 2.0, 5.0}) {
            const double tick = factor * std::pow(10, power);
            if ((fine || factor == 1.0) && tick >= low_ && tick <= high_) ticks.push_back(tick);
        }
    }
    return ticks;
}

}  // namespace controls::periodic
