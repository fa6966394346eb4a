#pragma once

#include <QColor>

namespace controls::periodic {

/// The colour of a position from 0 (low, pale yellow) over teal to 1 (high, dark blue). Equal steps look
/// equally large, and the lightness falls all the way, so that the order can be seen without telling hues
/// apart.
QColor scaleColor(double position);

}  // namespace controls::periodic
