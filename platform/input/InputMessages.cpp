#include "platform/input/InputMessages.h"

#include <QKeyEvent>
#include <QMouseEvent>

#include "platform/input/VirtualKeys.h"
#include "platform/qt/ClientArea.h"
#include "platform/qt/QtConvert.h"
#include "platform/qt/WindowTable.h"

namespace platform {

namespace {

/// Flags in mouse messages: the buttons and keys that are held down.
constexpr WPARAM leftButtonDown = 0x01;
constexpr WPARAM rightButtonDown = 0x02;
constexpr WPARAM shiftDown = 0x04;
constexpr WPARAM controlDown = 0x08;

UINT buttonMessage(QEvent::Type type, Qt::MouseButton button) {
    if (type == QEvent::MouseMove) return WM_MOUSEMOVE;
    if (button == Qt::LeftButton) {
        if (type == QEvent::MouseButtonRelease) return WM_LBUTTONUP;
        return type == QEvent::MouseButtonDblClick ? WM_LBUTTONDBLCLK : WM_LBUTTONDOWN;
    }
    if (button != Qt::RightButton) return 0;
    return type == QEvent::MouseButtonRelease ? WM_RBUTTONUP : WM_RBUTTONDOWN;
}

WPARAM keyStates(const QMouseEvent& event) {
    WPARAM states = 0;
    if (event.buttons() & Qt::LeftButton) states |= leftButtonDown;
    if (event.buttons() & Qt::RightButton) states |= rightButtonDown;
    if (event.modifiers() & Qt::ShiftModifier) states |= shiftDown;
    if (event.modifiers() & Qt::ControlModifier) states |= controlDown;
    return states;
}

QPoint clientPosition(QPoint global, const QWidget* window) {
    if (!window) return global;
    return window->mapFromGlobal(global) - clientAreaOf(*window).topLeft();
}

std::optional<MSG> mouseMessage(const QMouseEvent& event, HWND window) {
    const UINT message = buttonMessage(event.type(), event.button());
    if (message == 0) return std::nullopt;
    const QPoint position =
        clientPosition(event.globalPosition().toPoint(), WindowTable::instance().widget(window));
    return MSG{window, message, keyStates(event), packPoint(fromQt(position))};
}

MSG keyMessage(const QKeyEvent& event, HWND window) {
    return {window, event.type() == QEvent::KeyPress ? WM_KEYDOWN : WM_KEYUP, virtualKey(event.key()), 0};
}

}  // namespace

bool isMouseEvent(QEvent::Type type) {
    return type == QEvent::MouseMove || type == QEvent::MouseButtonPress ||
           type == QEvent::MouseButtonRelease || type == QEvent::MouseButtonDblClick;
}

std::optional<MSG> inputMessage(const QEvent& event, QWidget& receiver) {
    return inputMessageFor(event, WindowTable::instance().nearestHandle(&receiver));
}

std::optional<MSG> inputMessageFor(const QEvent& event, HWND window) {
    if (isMouseEvent(event.type())) return mouseMessage(static_cast<const QMouseEvent&>(event), window);
    switch (event.type()) {
        case QEvent::KeyPress:
        case QEvent::KeyRelease:
            return keyMessage(static_cast<const QKeyEvent&>(event), window);
        default:
            return std::nullopt;
    }
}

}  // namespace platform
