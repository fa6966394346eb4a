#pragma once

#include <string_view>

namespace controls {

/// The element that typed characters (code page 1253) lead to: the one with exactly this symbol, else the
/// first by atomic number whose Greek or English name starts with them. Case, tonos and dialytika do not
/// count. 0 when there is none or nothing is typed.
int findElementByStart(std::string_view typed);

}  // namespace controls
