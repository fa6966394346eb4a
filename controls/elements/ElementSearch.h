#pragma once

#include <string_view>

#include "controls/elements/Element.h"

namespace controls {

/// The element with this symbol, else the first by atomic number whose Greek or English name starts with the
/// typed characters (code page 1253). Case, tonos and dialytika do not count. Null when there is none or
/// nothing is typed.
const Element* findElementByStart(std::string_view typed);

}  // namespace controls
