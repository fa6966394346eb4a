#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "controls/common/Element.h"

namespace controls::dataanalyser {

/// The columns of the table from left to right; the codes are kept in bookmarks.
enum class Column : std::uint8_t {
    number,
    symbol,
    name,
    mass,
    group,
    period,
    melting,
    boiling,
    density,
    electronegativity,
    year
};
inline constexpr int columnCount = 11;

/// The column with a code, nothing for a code that no column has.
std::optional<Column> columnOfCode(int code);

enum class TemperatureUnit : std::uint8_t { kelvin, celsius };

/// The heading of a column with its unit, in code page 1253.
std::string heading(Column column, TemperatureUnit unit);

/// Whether the column holds words and not numbers.
bool isText(Column column);

/// What stands in a cell, in code page 1253 and with decimal comma; "–" when it is not known.
std::string cellText(const Element& element, Column column, TemperatureUnit unit);

/// The number by which a row is sorted; nothing when it is not known, or in a column of words.
std::optional<double> sortNumber(const Element& element, Column column);

}  // namespace controls::dataanalyser
