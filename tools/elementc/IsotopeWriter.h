#pragma once

#include <string>

#include "tools/elementc/IsotopeReader.h"

namespace elementc {

/// The C++ source with the table of isotopes that `controls/elements/Isotope.h` declares: of each element
/// those that occur in nature, those with a half-life of a year or more, and its four longest-lived ones. It
/// is an error when an abundance is no decimal number, when those of an element do not add up to 100 %, or
/// when an element has no isotope.
Result<std::string> writeIsotopes(const Isotopes& isotopes);

}  // namespace elementc
