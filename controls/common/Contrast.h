#pragma once

#include <QColor>

namespace controls::appearance {

/// The contrast of two colours as WCAG 2 defines it, from 1 (the same) to 21 (black and white).
double contrast(const QColor& one, const QColor& other);

/// The contrast that text needs with its background.
inline constexpr double minContrast = 4.5;

/// Black or white, whichever is easier to read on a background.
QColor readableOn(const QColor& background);

}  // namespace controls::appearance
