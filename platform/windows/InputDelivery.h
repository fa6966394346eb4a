#pragma once

#include "platform/base/Messages.h"

namespace platform {

/// Delivers an input message. Before a mouse move the window gets WM_SETCURSOR, unless the mouse is captured.
void deliverInput(const MSG& message);

}  // namespace platform
