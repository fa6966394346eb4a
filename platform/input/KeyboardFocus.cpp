#include "platform/input/KeyboardFocus.h"

#include <QApplication>
#include <QMenuBar>
#include <QPointer>
#include <QWidget>

#include "platform/qt/WindowTable.h"

namespace platform {

namespace {

QPointer<QWidget> awaited;
/// The last one that had the focus and is no menu bar. Qt does not tell each time that a menu bar takes the
/// focus, so it may have it now.
QPointer<QWidget> lastOutsideMenus;

QWidget* focusWidget() {
    if (awaited) return awaited;
    QWidget* const focus = QApplication::focusWidget();
    return qobject_cast<QMenuBar*>(focus) ? lastOutsideMenus.data() : focus;
}

}  // namespace

void giveFocus(QWidget& widget) {
    const bool otherWindow = widget.isVisible() && !widget.isActiveWindow();
    if (otherWindow) widget.activateWindow();
    widget.setFocus(Qt::OtherFocusReason);
    awaited = otherWindow ? &widget : nullptr;
}

void focusHasMoved(QWidget* to) {
    awaited = nullptr;
    if (!qobject_cast<QMenuBar*>(to)) lastOutsideMenus = to;
}

void SetFocus(HWND window) {
    if (QWidget* const widget = WindowTable::instance().widget(window)) giveFocus(*widget);
}

HWND GetFocus() { return WindowTable::instance().nearestHandle(focusWidget()); }

}  // namespace platform
