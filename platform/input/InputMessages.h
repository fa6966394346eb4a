#pragma once

#include <QEvent>
#include <QWidget>
#include <optional>

#include "platform/base/Messages.h"

/// Turns Qt's mouse and key events into messages.
namespace platform {

/// Whether it is a move, a press, a release or a double click of the mouse.
bool isMouseEvent(QEvent::Type type);

/// The message of an input event at a widget: its window is the widget's or the nearest above, 0 when there
/// is none, and positions are in that window's client area. Nothing for events that have no message.
std::optional<MSG> inputMessage(const QEvent& event, QWidget& receiver);

/// The same event as a message to another window.
std::optional<MSG> inputMessageFor(const QEvent& event, HWND window);

}  // namespace platform
