#pragma once

#include "platform/base/Messages.h"

namespace platform {

/// The window that receives all mouse messages of the program, 0 if none. The capture ends with the window.
HWND capturingWindow();
void captureMouse(HWND window);
void releaseMouse();

}  // namespace platform
