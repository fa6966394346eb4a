#include "tools/elementc/IsotopeWriter.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <sstream>
#include <utility>
#include <vector>

namespace elementc {

namespace {

constexpr std::string_view isotopeHead =
    R"(// Made by elementc; where each figure comes from: docs/third-party.md.
#include <array>

#include "controls/elements/Isotope.h"

namespace controls {

namespace {

constexpr std::array table{
)";

constexpr std::string_view isotopeTail = R"(};

}  // namespace

std::span<const Isotope> isotopes() { return table; }

}  // namespace controls
)";

constexpr std::size_t longestLivedCount = 4;
// How far the abundances of an element may miss 100 %, by rounding.
constexpr double allowedMiss = 0.1;

using IsotopeRow = std::pair<IsotopeKey, IsotopeValues>;

/// The isotopes of one element that go into the table.
std::vector<IsotopeRow> chosenOf(const Isotopes& isotopes, int element) {
    std::vector<IsotopeRow> natural, radioactive;
    for (auto at = isotopes.lower_bound({element, 0}); at != isotopes.end() && at->first.element == element;
         ++at) {
        if (!at->second.abundance.empty()) {
            natural.emplace_back(at->first, at->second);
        } else if (at->second.halfLife > 0) {
            radioactive.emplace_back(at->first, at->second);
        }
    }
    std::ranges::stable_sort(radioactive, std::greater(),
                             [](const IsotopeRow& row) { return row.second.halfLife; });
    for (std::size_t i = 0; i < radioactive.size(); ++i) {
        if (i < longestLivedCount || radioactive[i].second.halfLife >= secondsPerYear)
            natural.push_back(radioactive[i]);
    }
    std::ranges::sort(natural, {}, [](const IsotopeRow& row) { return row.first; });
    return natural;
}

Result<void> checkAbundances(const std::vector<IsotopeRow>& rows) {
    double sum = 0;
    for (const auto& [key, values] : rows) {
        if (values.abundance.find_first_not_of("0123456789.") != std::string::npos)
            return Failure{"the abundance " + values.abundance + " is no decimal number"};
        sum += std::strtod(values.abundance.c_str(), nullptr);
    }
    if (sum > 0 && std::abs(sum - 100) > allowedMiss)
        return Failure{"the abundances add up to " + std::to_string(sum) + " %"};
    return {};
}

std::string isotopeLine(const IsotopeRow& row) {
    std::ostringstream line;
    line.precision(6);
    line << "    Isotope{" << row.first.element << ", " << row.first.massNumber << ", {\""
         << row.second.abundance << "\"}, " << row.second.halfLife << "},\n";
    return line.str();
}

}  // namespace

Result<std::string> writeIsotopes(const Isotopes& isotopes) {
    std::string text(isotopeHead);
    for (int element = 1; element <= elementCount; ++element) {
        const auto chosen = chosenOf(isotopes, element);
        const auto checked = checkAbundances(chosen);
        const std::string where = "element " + std::to_string(element) + ": ";
        if (!checked) return Failure{where + checked.failure().message};
        if (chosen.empty()) return Failure{where + "no isotope"};
        for (const IsotopeRow& row : chosen) text += isotopeLine(row);
    }
    return text.append(isotopeTail);
}

}  // namespace elementc
