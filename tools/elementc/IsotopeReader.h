#pragma once

#include <compare>
#include <map>
#include <span>
#include <string>
#include <string_view>

#include "tools/elementc/Record.h"
#include "tools/elementc/SourceTable.h"

namespace elementc {

/// Of the mean Gregorian year.
inline constexpr double secondsPerYear = 31'556'952;

/// Which isotope: atomic number and mass number.
struct IsotopeKey {
    int element = 0;
    int massNumber = 0;
    auto operator<=>(const IsotopeKey&) const = default;
};

/// What is known of an isotope.
struct IsotopeValues {
    std::string abundance;  ///< per cent of the element's atoms, decimal digits; empty when it hardly occurs
    double halfLife = 0;    ///< s; 0 when none is known
    bool operator==(const IsotopeValues&) const = default;
};

using Isotopes = std::map<IsotopeKey, IsotopeValues>;

/// Reads the isotopes from the Blue Obelisk's `isotopes.xml`. `file` is its name in messages.
Result<Isotopes> readIsotopes(std::string_view xml, const std::string& file);

/// Replaces values by corrections, which have number, symbol, mass number, field ("abundance" or "half-life")
/// and value: a half-life is a number and its unit (s, min, h, d, y). The symbols must be those of `own`, the
/// table with a row for each element. Isotopes that the list lacks are added.
Result<Isotopes> correctIsotopes(Isotopes isotopes, std::span<const SourceRow> corrections,
                                 std::span<const SourceRow> own);

}  // namespace elementc
