#pragma once

#include <QEvent>
#include <QWidget>
#include <optional>

#include "platform/windows/Messages.h"

/// Turns Qt's mouse and key events into messages.
namespace platform {

/// The message of an input event at a widget: its window is the widget's or the nearest above, 0 when there
/// is none, and positions are in that window's client area. Nothing for events that have no message.
std::optional<MSG> inputMessage(const QEvent& event, QWidget& receiver);

/// The same event as a message to another window.
std::optional<MSG> inputMessageFor(const QEvent& event, HWND window);

/// Delivers an input message; a mouse move is preceded by WM_SETCURSOR unless the mouse is captured.
void deliverInput(const MSG& message);

}  // namespace platform
