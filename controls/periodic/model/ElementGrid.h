#pragma once

namespace controls::periodic {

inline constexpr int columnCount = 18;
/// Seven periods, then the lanthanides and the actinides.
inline constexpr int rowCount = 9;
inline constexpr int lanthanideRow = 8;
inline constexpr int actinideRow = 9;
/// The column in which the periods 6 and 7 leave a place for the two rows below, which begin there.
inline constexpr int innerColumn = 3;

/// A place in the table, both from 1.
struct Place {
    int column = 0;
    int row = 0;
    friend bool operator==(const Place&, const Place&) = default;
};

/// The place of an element (1 to 118).
Place placeOf(int number);

/// The element at a place, 0 where there is none.
int elementAt(Place place);

enum class Step { left, right, up, down };

/// The element one step away: left and right by atomic number, up and down to the next element of the column.
/// At an end it is the element itself; from 0 (none) every step leads to hydrogen.
int neighbour(int number, Step step);

}  // namespace controls::periodic
