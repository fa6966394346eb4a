#pragma once

#include "platform/base/Messages.h"

namespace platform {

/// Lets the window set its cursor (WM_SETCURSOR); it gets the arrow when it does not.
void askForCursor(HWND window);

}  // namespace platform
