#include "platform/dialogs/OwnerWindow.h"

#include <QApplication>
#include <QWidget>

#include "platform/qt/WindowTable.h"

namespace platform {

namespace {

/// The first visible window that has the flags; null when there is none.
QWidget* firstOnShow(Qt::WindowFlags flags) {
    const WindowTable& table = WindowTable::instance();
    for (const HWND window : table.all()) {
        QWidget* const widget = table.widget(window);
        if (widget->isWindow() && widget->isVisible() && (widget->windowFlags() & flags) == flags)
            return widget;
    }
    return nullptr;
}

}  // namespace

QWidget* ownerWindow() {
    // A dialog of another window would be behind it.
    if (QWidget* const top = firstOnShow(Qt::WindowStaysOnTopHint)) return top;
    if (QWidget* const active = QApplication::activeWindow()) {
        // A tool box is no owner; the window that it belongs to is.
        const bool serves = active->windowType() == Qt::Tool && active->parentWidget();
        return serves ? active->parentWidget()->window() : active;
    }
    return firstOnShow({});
}

void stayInFrontOf(QWidget& window, const QWidget* owner) {
    if (owner && owner->windowFlags() & Qt::WindowStaysOnTopHint) {
        window.setWindowFlag(Qt::WindowStaysOnTopHint);
    }
}

}  // namespace platform
