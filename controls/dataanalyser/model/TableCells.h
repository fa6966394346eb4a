#pragma once

#include <cstddef>
#include <cstdint>
#include <string>

#include "formats/DataSet.h"

namespace controls::dataanalyser {

/// The units of temperatures that the reader can choose.
enum class TemperatureUnit : std::uint8_t { kelvin, celsius };

/// Whether a column holds temperatures. These are shown in the unit that the reader has chosen.
bool isTemperature(const formats::DataColumn& column);

/// The heading of a column with its unit, in code page 1253.
std::string heading(const formats::DataColumn& column, TemperatureUnit unit);

/// The text of a cell, in code page 1253 and with decimal comma; empty when its value is not known.
std::string cellText(const formats::DataColumn& column, std::size_t row, TemperatureUnit unit);

/// The number in a cell, in the unit shown. NaN when it is not known or the column holds words.
double cellValue(const formats::DataColumn& column, std::size_t row, TemperatureUnit unit);

/// The text that the screen shows for an unknown value.
std::string_view unknownText();

}  // namespace controls::dataanalyser
