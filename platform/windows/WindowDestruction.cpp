#include "platform/windows/WindowDestruction.h"

#include <vector>

#include "platform/qt/WindowTable.h"
#include "platform/windows/ControlLink.h"
#include "platform/windows/WindowWidget.h"

namespace platform {

namespace {

/// The direct children that have an object, in the order of their creation.
std::vector<HWND> childrenOf(const WindowWidget& window) {
    const WindowTable& table = WindowTable::instance();
    std::vector<HWND> children;
    for (const HWND handle : table.all()) {
        const WindowWidget* const widget = WindowWidget::find(handle);
        if (widget && table.nearestHandle(widget->parentWidget()) == window.handle()) {
            children.push_back(handle);
        }
    }
    return children;
}

/// Sends WM_DESTROY to a window and its children. Handlers may destroy windows too, so each is looked up
/// again.
void announce(HWND handle) {
    WindowWidget* const window = WindowWidget::find(handle);
    if (!window || window->ending) return;
    window->ending = true;
    window->send(WM_DESTROY);
    if (!WindowWidget::find(handle)) return;
    for (const HWND child : childrenOf(*window)) announce(child);
}

/// Standard controls are destroyed with the widget of the window; their objects are separated from them now.
void detachControls(HWND window) {
    const WindowTable& table = WindowTable::instance();
    for (const HWND handle : table.all()) {
        ControlLink* const link = ControlLink::of(handle);
        if (link && table.nearestHandle(table.widget(handle)->parentWidget()) == window) link->detach();
    }
}

void endTree(WindowWidget& window) {
    detachControls(window.handle());
    for (const HWND handle : childrenOf(window)) endTree(*WindowWidget::find(handle));
    window.end();
}

}  // namespace

bool destroyWindow(WindowWidget& window) {
    if (window.ending) return false;
    const HWND handle = window.handle();
    announce(handle);
    WindowWidget* const left = WindowWidget::find(handle);
    if (!left) return true;
    moveFocusOut(*left);
    endTree(*left);
    return true;
}

}  // namespace platform
