#pragma once

#include <string>

namespace controls {

/// A number with this many decimals (at most 20) and a decimal comma.
std::string fixedNumber(double value, int decimals);

/// A number with at most `digits` significant digits and a decimal comma, such as "0,0456" or "1,2E-09".
std::string shortNumber(double value, int digits = 4);

/// A distance of 1, 2 or 5 times a power of ten that divides a span into at most about `parts`.
double tickDistance(double span, int parts);

}  // namespace controls
