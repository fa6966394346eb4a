#pragma once

#include <map>
#include <optional>
#include <string>
#include <string_view>

namespace contentc {

/// How many atoms of each element a formula has, by atomic number.
using AtomCounts = std::map<int, int>;

/// Reads a formula such as `H2O`, `Ca(OH)2` or `CuSO4*5H2O`, where `*` parts the water of crystals. Nothing
/// for any other text, and for symbols of no element.
std::optional<AtomCounts> atomsOf(std::string_view formula);

/// The mass of one mol in g/mol with decimal comma: two decimals, or fewer when an element's mass is known to
/// fewer.
std::string molarMassText(const AtomCounts& atoms);

}  // namespace contentc
