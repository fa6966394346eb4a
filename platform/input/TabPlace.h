#pragma once

#include "platform/base/Messages.h"

namespace platform {

/// Has the tabulator come to a window right after another one and all in it.
void TabAfter(HWND window, HWND former);

}  // namespace platform
