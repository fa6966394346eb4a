#pragma once

#include <string>

#include "tools/elementc/Record.h"

namespace elementc {

/// The C++ source with the table of elements that `controls/common/Element.h` declares. A figure that is no
/// decimal number, and a missing symbol, name, mass or year, is an error.
Result<std::string> writeTable(const Records& records);

}  // namespace elementc
