#pragma once

#include "platform/base/Messages.h"

class QMenuBar;

namespace platform {

/// Fills the bar with the program's menus. Each runs its rules when it is opened, and sends its commands to
/// the frame with WM_COMMAND.
void buildMenuBar(QMenuBar& bar, HWND frame);

}  // namespace platform
