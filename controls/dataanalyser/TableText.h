#pragma once

#include <span>
#include <string>

#include "controls/dataanalyser/Column.h"

namespace controls::dataanalyser {

/// The rows of these elements under the headings, one line each, cells parted by tabs; code page 1253.
std::string tabbedText(std::span<const int> numbers, TemperatureUnit unit);

/// The same as an HTML table, in code page 1253.
std::string htmlTable(std::span<const int> numbers, TemperatureUnit unit);

}  // namespace controls::dataanalyser
