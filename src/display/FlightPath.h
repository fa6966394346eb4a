#pragma once

#include <vector>

#include "platform/base/Geometry.h"

namespace kalyxo {

/// The rectangles through which one turns into another: one for each 40 pixels between their corners, the
/// first of them `start`; `end` itself is not among them.
std::vector<platform::CRect> FlightPath(const platform::CRect& start, const platform::CRect& end);

/// Whether two rectangles have a pixel in common.
bool Overlap(const platform::CRect& a, const platform::CRect& b);

}  // namespace kalyxo
