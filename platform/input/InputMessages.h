#pragma once

#include <QEvent>
#include <QWidget>
#include <optional>

#include "platform/base/Messages.h"

/// Turns Qt's mouse and key events into messages.
namespace platform {

/// Whether the event is a move, press, release or double click of the mouse.
bool isMouseEvent(QEvent::Type type);

/// The message for an input event at a widget. It goes to the window of the widget or its nearest ancestor
/// that has one, 0 if there is none; positions are relative to that window's client area. Nothing for events
/// that are no messages.
std::optional<MSG> inputMessage(const QEvent& event, QWidget& receiver);

/// The message for an input event to a given window.
std::optional<MSG> inputMessageFor(const QEvent& event, HWND window);

}  // namespace platform
