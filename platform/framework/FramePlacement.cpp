#include "platform/framework/FramePlacement.h"

#include <QEvent>
#include <QWidget>
#include <QWindow>

namespace platform {

namespace {

/// How long a window manager may take to tell the width of a frame.
constexpr int settleMs = 100;

}  // namespace

FramePlacement::FramePlacement(QWidget& widget) : widget_(widget) {
    // This makes the native window; some window systems know the frame from then on.
    widget_.winId();
    followNativeWindow();
    widget_.installEventFilter(this);
}

void FramePlacement::followNativeWindow() {
    if (!widget_.windowHandle() || widget_.windowHandle() == window_) return;
    window_ = widget_.windowHandle();
    window_->installEventFilter(this);
    if (isNormal()) return;
    if (wanted_) window_->setGeometry(*wanted_);
    window_->setWindowStates(widget_.windowState());
}

void FramePlacement::place(const QRect& outer) {
    const bool settled = isNormal() && widget_.windowHandle()->isExposed();
    if (!isNormal()) widget_.setWindowState(Qt::WindowNoState);
    wanted_ = outer;
    apply(outer);
    // The user may move a settled window from now on.
    if (settled) wanted_.reset();
}

void FramePlacement::remember() {
    if (isNormal() && !wanted_) wanted_ = current();
}

QRect FramePlacement::outer() const { return wanted_ && isNormal() ? *wanted_ : current(); }

bool FramePlacement::eventFilter(QObject* watched, QEvent* event) {
    if (watched == &widget_) {
        if (event->type() == QEvent::WinIdChange) followNativeWindow();
        return false;
    }
    const bool mayKnowFrame = event->type() == QEvent::Expose || event->type() == QEvent::WindowStateChange;
    if (!mayKnowFrame || !wanted_ || !isNormal() || !widget_.windowHandle()->isExposed()) return false;
    apply(*wanted_);
    settling_.start(settleMs, this);
    return false;
}

void FramePlacement::timerEvent(QTimerEvent*) {
    settling_.stop();
    if (!wanted_ || !isNormal()) return;
    apply(*wanted_);
    wanted_.reset();
}

bool FramePlacement::isNormal() const {
    return !(widget_.windowState() & (Qt::WindowMinimized | Qt::WindowMaximized | Qt::WindowFullScreen));
}

QRect FramePlacement::current() const {
    // The native window knows of changes before the widget, which gets them as events.
    const QWindow& window = *widget_.windowHandle();
    return window.geometry().marginsAdded(window.frameMargins());
}

void FramePlacement::apply(QRect outer) {
    if (current() == outer) return;
    widget_.setGeometry(outer.marginsRemoved(widget_.windowHandle()->frameMargins()));
    // Some window systems keep the area inside the frame on the screen, unless the frame itself is placed.
    if (current() != outer) widget_.windowHandle()->setFramePosition(outer.topLeft());
}

}  // namespace platform
