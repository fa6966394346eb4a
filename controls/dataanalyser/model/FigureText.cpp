#include "controls/dataanalyser/model/FigureText.h"

#include <algorithm>
#include <array>
#include <charconv>

namespace controls::dataanalyser {

namespace {

std::string figure(double value, std::chars_format format, int precision) {
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

std::string fixedFigure(double value, int decimals) {
    return figure(value, std::chars_format::fixed, std::clamp(decimals, 0, 20));
}

std::string shortFigure(double value, int digits) {
    return figure(value, std::chars_format::general, digits);
}

}  // namespace controls::dataanalyser
