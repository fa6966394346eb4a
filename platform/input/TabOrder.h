#pragma once

#include "platform/base/Messages.h"

class QWidget;

namespace platform {

/// Puts a window into the tabulator's order right after another window and all windows inside that one.
void TabAfter(HWND window, HWND former);

/// Whether any part of the widget is inside its window. The program moves a hidden pane outside its window.
bool isInSight(const QWidget& widget);

/// Moves the keyboard focus from a widget to the next one that takes it and is in sight, as the tabulator
/// does. False when there is no other.
bool focusNextInSight(QWidget& from, bool forward);

/// Gives the focus to the window around a component, from the widget `area` that fills the component's
/// window.
void focusAroundComponent(const QWidget& area);

}  // namespace platform
