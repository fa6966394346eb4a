#pragma once

#include "platform/base/Messages.h"

class QMenuBar;

namespace platform {

/// Fills the bar with the program's menus. When a menu is opened its update handlers run. Its commands go to
/// the frame by WM_COMMAND.
void buildMenuBar(QMenuBar& bar, HWND frame);

}  // namespace platform
