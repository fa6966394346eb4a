#include "controls/elements/Isotope.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "controls/elements/NumberText.h"
#include "platform/text/GreekLiteral.h"

namespace controls {

namespace {

using namespace platform::literals;

struct TimeUnit {
    double seconds;
    std::string_view name;
    std::string_view one;  ///< its name behind a 1
};

// The mean Gregorian year.
constexpr double year = 31'556'952;
constexpr double maxWords = 1e12 * year;

constexpr std::array<TimeUnit, 8> timeUnits{
    {{1e9 * year, "δισεκατομμύρια χρόνια"_gr, "δισεκατομμύριο χρόνια"_gr},
     {1e6 * year, "εκατομμύρια χρόνια"_gr, "εκατομμύριο χρόνια"_gr},
     {year, "χρόνια"_gr, "χρόνος"_gr},
     {86'400, "ημέρες"_gr, "ημέρα"_gr},
     {3600, "ώρες"_gr, "ώρα"_gr},
     {60, "λεπτά"_gr, "λεπτό"_gr},
     {1, "s"_gr, "s"_gr},
     {1e-3, "ms"_gr, "ms"_gr}}};

/// A number of three digits, in full.
std::string threeDigits(double value) {
    if (value < 999.5) return shortNumber(value, 3);
    const double step = std::pow(10, std::floor(std::log10(value)) - 2);
    std::string digits = fixedNumber(std::round(value / step) * step, 0);
    // A space that does not break parts the thousands of five digits and more.
    if (digits.size() > 4) digits.insert(digits.size() - 3, 1, '\xA0');
    return digits;
}

std::string withPowerOfTen(double years) {
    const int power = static_cast<int>(std::floor(std::log10(years * 1.0001)));
    const std::string factor = shortNumber(years / std::pow(10, power), 3);
    const std::string raised = "10^" + std::to_string(power) + '^';
    return factor == "1" ? raised : factor + std::string("·"_gr) + raised;
}

}  // namespace

std::span<const Isotope> isotopesOf(const Element& element) {
    return std::ranges::equal_range(isotopes(), element.number, {}, &Isotope::element);
}

std::string halfLifeText(const Isotope& isotope) {
    if (isotope.isStable()) return std::string("σταθερό"_gr);
    if (isotope.halfLife >= maxWords)
        return withPowerOfTen(isotope.halfLife / year) + std::string(" χρόνια"_gr);
    const auto unit = std::ranges::find_if(timeUnits, [&](const TimeUnit& each) {
        return isotope.halfLife >= each.seconds * 0.9995 || &each == &timeUnits.back();
    });
    const std::string digits = threeDigits(isotope.halfLife / unit->seconds);
    return digits + ' ' + std::string(digits == "1" ? unit->one : unit->name);
}

}  // namespace controls
