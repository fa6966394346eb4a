#pragma once

#include <cstdint>

#include "controls/periodic/model/TableView.h"

namespace controls::periodic {

inline constexpr int leastKelvin = 0;
inline constexpr int mostKelvin = 6000;
/// 25 °C, rounded.
inline constexpr int usualKelvin = 298;

/// The time slider: from here on the years count, at its start all before.
inline constexpr int leastYear = 1650;
/// The year in which the last element was found.
inline constexpr int mostYear = 2010;

/// What a bookmark of the table brings back.
struct TableState {
    int selected = 0;  ///< atomic number, 0 for none
    TableView view = TableView::families;
    /// The colour scale of a quantity is not its usual one, but logarithmic where that is linear and the
    /// other way round.
    bool otherScale = false;
    int highlighted = 0;       ///< the kind of elements that stands out, 0 for none
    int kelvin = usualKelvin;  ///< of the view of matter
    int year = mostYear;       ///< what was found later does not show in the view of discovery
    friend bool operator==(const TableState&, const TableState&) = default;
};

/// The first half: bits 0 to 7 the selected element, 8 to 15 the view's code, 16 the other scale.
std::int32_t firstHalf(const TableState& state);
/// The second half: bits 0 to 3 the highlighted kind, 4 to 16 the temperature and 17 to 27 the year, both 0
/// for the usual one and else one more than the temperature, or the year.
std::int32_t secondHalf(const TableState& state);

/// The state with these halves, whatever numbers they are: a part that no state has gets its usual value, and
/// so has each part of a half in which any of the other bits is set.
TableState stateOf(std::int32_t first, std::int32_t second);

}  // namespace controls::periodic
