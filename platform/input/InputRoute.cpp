#include "platform/input/InputRoute.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <utility>

namespace platform {

InputRoute::Signature InputRoute::signatureOf(const QInputEvent& event) {
    Signature signature{event.type(), event.timestamp(), {}, 0};
    if (const auto* const mouse = dynamic_cast<const QMouseEvent*>(&event)) {
        signature.position = mouse->globalPosition().toPoint();
        signature.keyOrButton = static_cast<int>(mouse->button());
    } else if (const auto* const key = dynamic_cast<const QKeyEvent*>(&event)) {
        signature.keyOrButton = key->key();
    }
    return signature;
}

bool InputRoute::arriveAtWidget(const QInputEvent& event, const QWidget& widget) {
    const Signature signature = signatureOf(event);
    const bool wentUp = lastWidget_ && &widget != lastWidget_ && widget.isAncestorOf(lastWidget_);
    const bool repeats = signature == last_ && (std::exchange(atWindow_, false) || wentUp);
    last_ = signature;
    lastWidget_ = &widget;
    atWindow_ = false;
    return !repeats;
}

void InputRoute::arriveAtWindow(const QInputEvent& event) {
    last_ = signatureOf(event);
    lastWidget_ = nullptr;
    atWindow_ = true;
}

}  // namespace platform
