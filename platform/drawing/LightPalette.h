#pragma once

#include <QPalette>

namespace platform {

/// The light colours of the program's windows, whatever theme the desktop has.
QPalette lightPalette();

/// Sets these colours for all windows of the application, including those that Qt makes itself.
void applyLightPalette();

}  // namespace platform
