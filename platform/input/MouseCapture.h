#pragma once

#include "platform/base/Messages.h"

namespace platform {

/// The window that gets all mouse messages of the program, 0 when none does. The capture ends with the
/// window.
HWND capturingWindow();
void captureMouse(HWND window);
void releaseMouse();

}  // namespace platform
