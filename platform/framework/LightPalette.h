#pragma once

#include <QPalette>

namespace platform {

/// The calm, light colours of the program's own windows, whatever the desktop's theme is.
QPalette lightPalette();

}  // namespace platform
