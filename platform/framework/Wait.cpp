#include "platform/framework/Wait.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QPointer>
#include <QTimer>
#include <QWindow>
#include <chrono>
#include <thread>

#include "platform/machine/Machine.h"
#include "platform/windows/WindowWidget.h"

namespace platform {

namespace {

/// The time that a window system may take to show a window, milliseconds.
constexpr int maxShowTime = 250;
constexpr std::chrono::milliseconds pause(1);

}  // namespace

void Sleep(std::uint32_t milliseconds) {
    if (machine().virtualTime()) {
        machine().sleep(milliseconds);
        return;
    }
    QEventLoop loop;
    QTimer timer;
    timer.setSingleShot(true);
    timer.setTimerType(Qt::PreciseTimer);
    QObject::connect(&timer, &QTimer::timeout, &loop, &QEventLoop::quit);
    timer.start(static_cast<int>(milliseconds));
    loop.exec(QEventLoop::ExcludeUserInputEvents);
}

void UpdateWindow(CWnd& window) {
    const QPointer<WindowWidget> widget = WindowWidget::of(window);
    if (!widget || machine().virtualTime()) return;
    QElapsedTimer timer;
    timer.start();
    while (widget && widget->windowHandle() && !widget->windowHandle()->isExposed() &&
           !timer.hasExpired(maxShowTime)) {
        QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
        std::this_thread::sleep_for(pause);
    }
    if (widget) widget->repaint();
}

}  // namespace platform
