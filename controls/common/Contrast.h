#pragma once

#include <QColor>

namespace controls::appearance {

/// The contrast of two colours as WCAG 2 reckons it: 1 (alike) to 21 (black on white).
double contrast(const QColor& one, const QColor& other);

/// What text needs at least on its ground.
inline constexpr double leastContrast = 4.5;

/// Black or white, whichever is easier to read on a ground.
QColor readableOn(const QColor& below);

}  // namespace controls::appearance
