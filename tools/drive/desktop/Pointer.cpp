#include "tools/drive/desktop/Pointer.h"

#include <QApplication>
#include <QMouseEvent>
#include <QPointer>
#include <QTest>
#include <QWheelEvent>
#include <QWindow>

#include "platform/qt/QtConvert.h"
#include "tools/drive/desktop/Windows.h"

namespace drive {

using platform::CPoint;
using platform::HWND;

namespace {

/// Milliseconds between two events: too many for two clicks to count as a double click.
constexpr int timeStep = 1000;

/// The state of the mouse. Queued calls change it, in the order in which they were made.
struct MouseState {
    QPoint position;
    Qt::MouseButtons buttons;
    Qt::KeyboardModifiers modifiers;
    QPointer<QWindow> grabbing;  // the window of a press, until the last button is up
    int time = 0;
};

MouseState& mouse() {
    static MouseState state;
    return state;
}

QWindow* windowAtPointer() {
    if (mouse().buttons && mouse().grabbing) return mouse().grabbing;
    const QWidget* top = QApplication::topLevelAt(mouse().position);
    return top == nullptr ? nullptr : top->windowHandle();
}

/// Activates the top-level window, as a window system does before it delivers a press.
void activate(const QWindow* window) {
    QWidget* top = window == nullptr ? nullptr : QWidget::find(window->winId());
    const QWidget* modal = QApplication::activeModalWidget();
    if (top == nullptr || top->isActiveWindow() || (modal != nullptr && modal != top)) return;
    top->activateWindow();
    // The window system would answer only later.
    QApplication::setActiveWindow(top);
}

void send(QEvent::Type type, Qt::MouseButton button) {
    QWindow* window = windowAtPointer();
    if (type == QEvent::MouseButtonPress) activate(window);
    mouse().time += timeStep;
    if (type == QEvent::MouseButtonPress) {
        mouse().buttons |= button;
        mouse().grabbing = window;
    } else if (type == QEvent::MouseButtonRelease) {
        mouse().buttons &= ~Qt::MouseButtons(button);
    }
    if (window == nullptr) return;
    const QPointF local = window->mapFromGlobal(QPointF(mouse().position));
    qt_handleMouseEvent(window, local, mouse().position, mouse().buttons, button, type, mouse().modifiers,
                        mouse().time);
}

void sendSecondPress() {
    QWindow* window = windowAtPointer();
    if (window == nullptr) return;
    mouse().buttons |= Qt::LeftButton;
    mouse().grabbing = window;
    const QPointF local = window->mapFromGlobal(QPointF(mouse().position));
    QMouseEvent event(QEvent::MouseButtonDblClick, local, local, mouse().position, Qt::LeftButton,
                      Qt::LeftButton, mouse().modifiers);
    mouse().time += timeStep;
    event.setTimestamp(static_cast<quint64>(mouse().time));
    QSpontaneKeyEvent::setSpontaneous(&event);
    QCoreApplication::instance()->notify(window, &event);
}

void sendWheel(int notches) {
    constexpr int notch = 120;
    QWindow* window = windowAtPointer();
    if (window == nullptr) return;
    const QPointF local = window->mapFromGlobal(QPointF(mouse().position));
    QWheelEvent event(local, mouse().position, {}, {0, notch * notches}, mouse().buttons, mouse().modifiers,
                      Qt::NoScrollPhase, false);
    QSpontaneKeyEvent::setSpontaneous(&event);
    QCoreApplication::instance()->notify(window, &event);
}

template <class Step>
void later(Step step) {
    QMetaObject::invokeMethod(qApp, step, Qt::QueuedConnection);
}

void moveCursor(QPoint position) {
    mouse().position = position;
    // The window system may or may not report this move; the event below is sent in any case.
    QCursor::setPos(position);
    send(QEvent::MouseMove, Qt::NoButton);
}

}  // namespace

Pointer& Pointer::instance() {
    static Pointer pointer;
    return pointer;
}

void Pointer::hold(Qt::KeyboardModifiers modifiers) {
    later([modifiers] { mouse().modifiers = modifiers; });
}

void Pointer::moveTo(HWND window, CPoint p) { moveTo(clientToScreen(window, p)); }

void Pointer::moveTo(CPoint screen) {
    later([position = platform::toQt(screen)] { moveCursor(position); });
}

void Pointer::press(Qt::MouseButton button) {
    later([button] { send(QEvent::MouseButtonPress, button); });
}

void Pointer::release(Qt::MouseButton button) {
    later([button] { send(QEvent::MouseButtonRelease, button); });
}

void Pointer::pressAgain() { later(sendSecondPress); }

void Pointer::turnWheel(int notches) {
    later([notches] { sendWheel(notches); });
}

QCursor Pointer::cursor() const {
    const QWindow* window = windowAtPointer();
    return window == nullptr ? QCursor() : window->cursor();
}

}  // namespace drive
