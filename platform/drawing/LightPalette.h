#pragma once

#include <QPalette>

namespace platform {

/// The calm, light colours of the program's own windows, whatever the desktop's theme is.
QPalette lightPalette();

/// Has all windows of the application wear them, those too that the program does not make itself.
void wearLightPalette();

}  // namespace platform
