#pragma once

#include "platform/base/Messages.h"

class QWidget;

namespace platform {

/// Gives a widget the keyboard focus. If its window must become active first, GetFocus returns the new focus
/// already.
void giveFocus(QWidget& widget);

/// The window with the keyboard focus, 0 if none has it. A menu bar takes keys, but not the focus: the window
/// that had it before keeps it.
HWND GetFocus();
/// Gives any window of the window table the keyboard focus.
void SetFocus(HWND window);

/// To be called when the focus has moved to a widget, or to none (null).
void focusHasMoved(QWidget* to);

}  // namespace platform
