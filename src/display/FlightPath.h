#pragma once

#include <vector>

#include "platform/base/Geometry.h"

namespace kalyxo {

/// The rectangles of an animation that turns one rectangle into another: one for each 40 pixels between their
/// corners. The first is `start`; `end` is not among them.
std::vector<platform::CRect> FlightPath(const platform::CRect& start, const platform::CRect& end);

/// Whether two rectangles have a pixel in common.
bool Overlap(const platform::CRect& a, const platform::CRect& b);

}  // namespace kalyxo
