#include "platform/input/KeyboardFocus.h"

#include <QApplication>
#include <QPointer>
#include <QWidget>

#include "platform/qt/WindowTable.h"

namespace platform {

namespace {

QPointer<QWidget> awaited;

}  // namespace

void giveFocus(QWidget& widget) {
    const bool otherWindow = widget.isVisible() && !widget.isActiveWindow();
    if (otherWindow) widget.activateWindow();
    widget.setFocus(Qt::OtherFocusReason);
    awaited = otherWindow ? &widget : nullptr;
}

void focusHasMoved() { awaited = nullptr; }

void SetFocus(HWND window) {
    if (QWidget* const widget = WindowTable::instance().widget(window)) giveFocus(*widget);
}

HWND GetFocus() {
    return WindowTable::instance().nearestHandle(awaited ? awaited.data() : QApplication::focusWidget());
}

}  // namespace platform
