#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "controls/elements/Element.h"

namespace controls {

/// The quantities by which elements can be compared. Their codes (from 0) are kept in bookmarks.
enum class Quantity : std::uint8_t {
    electronegativity,
    covalentRadius,
    ionisation,
    density,
    melting,
    boiling,
    discovery,
    crust,
    electronAffinity,
    vanDerWaalsRadius
};
inline constexpr int quantityCount = 10;

/// The name of a quantity, and its unit, which is empty for some; code page 1253.
std::string_view quantityName(Quantity quantity);
std::string_view quantityUnit(Quantity quantity);

/// The value in the unit of `quantityUnit`; nothing when it is not known. The year of an element known in
/// antiquity is `antiquity`.
std::optional<double> quantityValue(const Element& element, Quantity quantity);

/// The value in its significant digits, with decimal comma and without unit; empty when it is not known. The
/// year of an element known in antiquity is "αρχαιότητα".
std::string quantityText(const Element& element, Quantity quantity);

/// A temperature in °C with decimal comma, with as many decimals as are known of it in K, but at most one;
/// empty when it is not known.
std::string celsiusText(const Figure& kelvin);

}  // namespace controls
