#include "controls/elements/NumberText.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>

namespace controls {

namespace {

std::string numberText(double value, std::chars_format format, int precision) {
    // A double has at most 309 digits before the point.
    std::array<char, 400> buffer{};
    const auto [end, error] =
        std::to_chars(buffer.data(), buffer.data() + buffer.size(), value, format, precision);
    std::string text(buffer.data(), error == std::errc() ? end : buffer.data());
    std::ranges::replace(text, '.', ',');
    std::ranges::replace(text, 'e', 'E');
    return text;
}

}  // namespace

std::string fixedNumber(double value, int decimals) {
    return numberText(value, std::chars_format::fixed, std::clamp(decimals, 0, 20));
}

std::string shortNumber(double value, int digits) {
    return numberText(value, std::chars_format::general, digits);
}

double tickDistance(double span, int parts) {
    const double rough = span / std::max(parts, 1);
    const double power = std::pow(10, std::floor(std::log10(rough)));
    for (const double step : {1.0, 2.0, 5.0}) {
        if (rough <= step * power * 1.0001) return step * power;
    }
    return 10 * power;
}

}  // namespace controls
