#pragma once

namespace controls::periodic {

inline constexpr int columnCount = 18;
/// Seven periods, the lanthanides and the actinides.
inline constexpr int rowCount = 9;
inline constexpr int lanthanideRow = 8;
inline constexpr int actinideRow = 9;
/// The column where the lanthanides and the actinides leave a gap in the periods 6 and 7. Their own rows
/// begin in it too.
inline constexpr int innerColumn = 3;

/// A place in the table; columns and rows count from 1.
struct Place {
    int column = 0;
    int row = 0;
    friend bool operator==(const Place&, const Place&) = default;
};

/// The place of an element (1 to 118).
Place placeOf(int number);

/// The atomic number of the element at a place, 0 when there is none.
int elementAt(Place place);

enum class Step { left, right, up, down };  ///< where an arrow key leads

/// The atomic number one step away: left and right by one, up and down to the next element of the column.
/// Where the table ends, the number stays. From 0 (no element) every step leads to hydrogen.
int neighbour(int number, Step step);

}  // namespace controls::periodic
