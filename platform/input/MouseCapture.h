#pragma once

#include "platform/base/Messages.h"

namespace platform {

/// The window that receives all mouse messages of the program, 0 if none. The capture ends with the window.
HWND capturingWindow();
/// Sends all mouse messages to the window from now on, instead of to the one under the pointer.
void captureMouse(HWND window);
/// Ends the capture, whichever window has it.
void releaseMouse();

}  // namespace platform
