#pragma once

#include <string>

#include "tools/elementc/Record.h"

namespace elementc {

/// The C++ source with the table of elements that `controls/elements/Element.h` declares. It is an error when
/// a figure is no decimal number, when the oxidation numbers are no list, or when a symbol, name, mass or
/// year is missing.
Result<std::string> writeTable(const Records& records);

}  // namespace elementc
