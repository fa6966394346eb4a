#pragma once

#include <QColor>

namespace controls::periodic {

/// The colour of a position: from pale yellow at 0 (low) over teal to dark blue at 1 (high). Equal steps look
/// equally large. Higher colours are always darker, so that the order can be seen without telling hues apart.
QColor scaleColor(double position);

}  // namespace controls::periodic
