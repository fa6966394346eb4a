#include "platform/framework/OwnerWindow.h"

#include <QApplication>
#include <QWidget>

#include "platform/handles/WindowTable.h"

namespace platform {

QWidget* ownerWindow() {
    if (QWidget* const active = QApplication::activeWindow()) {
        // A box of tools only floats before the window that it serves.
        const bool serves = active->windowType() == Qt::Tool && active->parentWidget();
        return serves ? active->parentWidget()->window() : active;
    }
    const WindowTable& table = WindowTable::instance();
    for (const HWND window : table.all()) {
        QWidget* const widget = table.widget(window);
        if (widget->isWindow() && widget->isVisible()) return widget;
    }
    return nullptr;
}

}  // namespace platform
