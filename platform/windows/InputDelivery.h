#pragma once

#include "platform/base/Messages.h"

namespace platform {

/// Delivers an input message; a mouse move is preceded by WM_SETCURSOR unless the mouse is captured.
void deliverInput(const MSG& message);

}  // namespace platform
