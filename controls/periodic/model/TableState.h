#pragma once

#include <cstdint>

#include "controls/periodic/model/TableView.h"

namespace controls::periodic {

/// The range of the temperature slider.
inline constexpr int minKelvin = 0;
inline constexpr int maxKelvin = 6000;
/// 25 °C, rounded.
inline constexpr int usualKelvin = 298;

/// The range of the year slider. Its first year shows all elements that were known by then, its last year all
/// elements.
inline constexpr int minYear = 1650;
inline constexpr int maxYear = 2010;

/// The state of the table that a bookmark keeps.
struct TableState {
    int selected = 0;  ///< atomic number, 0 for none
    TableView view = TableView::families;
    /// The colour scale is not the usual one of the quantity: logarithmic instead of linear, or the reverse.
    bool otherScale = false;
    int highlighted = 0;       ///< the kind of elements that stands out, 0 for none
    int kelvin = usualKelvin;  ///< the temperature of the view of matter
    int year = maxYear;        ///< elements found later are left empty in the view of discovery
    friend bool operator==(const TableState&, const TableState&) = default;
};

/// The first half of a state: the selected element in bits 0 to 7, the code of the view in 8 to 15, the other
/// scale in 16.
std::int32_t firstHalf(const TableState& state);
/// The second half: the highlighted kind in bits 0 to 3, and 16 of it in bit 28; the temperature plus one in
/// 4 to 16, the year in 17 to 27. 0 stands for the usual temperature and for the last year.
std::int32_t secondHalf(const TableState& state);

/// The state with these halves, which may be any numbers. A part without meaning gets its usual value. So do
/// all parts of a half that has any other bit set.
TableState stateOf(std::int32_t first, std::int32_t second);

}  // namespace controls::periodic
