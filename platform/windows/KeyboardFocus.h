#pragma once

class QWidget;

namespace platform {

/// Gives a widget the keyboard focus. Until the window system has made its window the active one, GetFocus
/// tells the focus that was asked for.
void giveFocus(QWidget& widget);

/// The focus has moved: nothing is waited for any more.
void focusHasMoved();

}  // namespace platform
