#include "platform/browser/FirstExposure.h"

#include <QEvent>
#include <QWidget>
#include <chrono>
#include <utility>

namespace platform {

namespace {

/// How long a window system may take to show a window; the call waits as long for one that stays hidden.
constexpr std::chrono::milliseconds maxWait{250};

}  // namespace

FirstExposure::FirstExposure(QWidget& widget, std::function<void()> call) : call_(std::move(call)) {
    wait_.setSingleShot(true);
    connect(&wait_, &QTimer::timeout, this, [this] { std::exchange(call_, [] {})(); });
    wait_.start(maxWait);
    widget.installEventFilter(this);
    watchWindow(widget);
}

void FirstExposure::watchWindow(const QWidget& widget) {
    window_ = widget.window()->windowHandle();
    if (window_) window_->installEventFilter(this);
}

bool FirstExposure::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::Show && !window_ && watched->isWidgetType()) {
        watchWindow(*static_cast<QWidget*>(watched));
    } else if (event->type() == QEvent::Expose && watched == window_ && window_->isExposed()) {
        // The window draws itself while it handles this event, and the call is to come after that.
        window_->removeEventFilter(this);
        wait_.start(0);
    }
    return QObject::eventFilter(watched, event);
}

}  // namespace platform
