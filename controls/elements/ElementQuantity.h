#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "controls/elements/Element.h"

namespace controls {

/// What elements can be compared by. The codes (from 0) are kept in bookmarks.
enum class Quantity : std::uint8_t {
    electronegativity,
    covalentRadius,
    ionisation,
    density,
    melting,
    boiling,
    discovery,
    crust
};
inline constexpr int quantityCount = 8;

/// The name of a quantity and its unit, which may be empty; code page 1253.
std::string_view quantityName(Quantity quantity);
std::string_view quantityUnit(Quantity quantity);

/// The value in the unit of `quantityUnit`; nothing when it is not known. An element known in antiquity has
/// the year `antiquity`.
std::optional<double> quantityValue(const Element& element, Quantity quantity);

/// The same in the digits that are known, with decimal comma and without unit; empty when not known. The year
/// of an element known in antiquity is "αρχαιότητα".
std::string quantityText(const Element& element, Quantity quantity);

}  // namespace controls
