#pragma once

#include "platform/base/Messages.h"

class QWidget;

namespace platform {

/// Gives a widget the keyboard focus. Until the window system has made its window the active one, GetFocus
/// tells the focus that was asked for.
void giveFocus(QWidget& widget);

/// The window with the keyboard focus, 0 when none.
HWND GetFocus();
/// Gives any window of the window table the keyboard focus.
void SetFocus(HWND window);

/// The focus has moved: nothing is waited for any more.
void focusHasMoved();

}  // namespace platform
