#include "platform/engine/UserPress.h"

#include <QEvent>
#include <chrono>

namespace platform {

namespace {

constexpr std::chrono::seconds timeForAnswer{5};

}  // namespace

void UserPress::see(const QEvent& event) {
    const auto type = event.type();
    const bool isPress = type == QEvent::MouseButtonPress || type == QEvent::MouseButtonDblClick ||
                         type == QEvent::KeyPress || type == QEvent::TouchBegin;
    // A click is reported when the button is released, however long it was held.
    const bool isRelease =
        type == QEvent::MouseButtonRelease || type == QEvent::KeyRelease || type == QEvent::TouchEnd;
    if (limit_.hasExpired() && isPress) presses_ = 0;
    if (isPress) ++presses_;
    if (isPress) lastWasKey_ = type == QEvent::KeyPress;
    if (isPress || isRelease) limit_.setRemainingTime(timeForAnswer);
}

bool UserPress::take() {
    if (presses_ == 0 || limit_.hasExpired()) return false;
    --presses_;
    return true;
}

}  // namespace platform
