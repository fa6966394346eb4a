#pragma once

#include <string>

namespace controls::dataanalyser {

/// A number with this many decimals and a decimal comma.
std::string fixedFigure(double value, int decimals);

/// A number with at most `digits` significant digits and a decimal comma, such as "0,0456" or "1,2E-9".
std::string shortFigure(double value, int digits = 4);

}  // namespace controls::dataanalyser
