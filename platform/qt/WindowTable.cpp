#include "platform/qt/WindowTable.h"

#include <QWidget>
#include <utility>

namespace platform {

WindowTable& WindowTable::instance() {
    static WindowTable table;
    return table;
}

HWND WindowTable::add(WindowEntry entry) {
    QWidget* const widget = entry.widget;
    if (const HWND known = handleOf(widget)) {
        entries_[static_cast<std::size_t>(known) - 1] = std::move(entry);
        return known;
    }
    entries_.push_back(std::move(entry));
    const auto window = static_cast<HWND>(entries_.size());
    handles_.emplace(widget, window);
    QObject::connect(widget, &QObject::destroyed, [window] { instance().remove(window); });
    return window;
}

void WindowTable::remove(HWND window) {
    const WindowEntry* const entry = find(window);
    if (!entry) return;
    handles_.erase(entry->widget);
    entries_[static_cast<std::size_t>(window) - 1] = {};
}

const WindowEntry* WindowTable::find(HWND window) const {
    if (window <= 0 || static_cast<std::size_t>(window) > entries_.size()) return nullptr;
    const WindowEntry& entry = entries_[static_cast<std::size_t>(window) - 1];
    return entry.widget ? &entry : nullptr;
}

QWidget* WindowTable::widget(HWND window) const {
    const WindowEntry* const entry = find(window);
    return entry ? entry->widget : nullptr;
}

HWND WindowTable::handleOf(const QWidget* widget) const {
    const auto found = handles_.find(widget);
    return found == handles_.end() ? 0 : found->second;
}

HWND WindowTable::nearestHandle(const QWidget* widget) const {
    for (; widget; widget = widget->parentWidget()) {
        if (const HWND window = handleOf(widget)) return window;
        if (widget->isWindow() && widget->windowType() != Qt::Popup) return 0;
    }
    return 0;
}

std::vector<HWND> WindowTable::all() const {
    std::vector<HWND> windows;
    for (std::size_t i = 0; i < entries_.size(); ++i) {
        if (entries_[i].widget) windows.push_back(static_cast<HWND>(i + 1));
    }
    return windows;
}

LRESULT WindowTable::send(HWND window, UINT message, WPARAM wParam, LPARAM lParam) const {
    const WindowEntry* const entry = find(window);
    if (!entry || !entry->proc) return 0;
    // The receiver may remove its own entry or make the table grow while it runs.
    const MessageProc proc = entry->proc;
    return proc(message, wParam, lParam);
}

void WindowTable::post(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    QWidget* const receiver = widget(window);
    if (!receiver) return;
    QMetaObject::invokeMethod(
        receiver, [=] { instance().send(window, message, wParam, lParam); }, Qt::QueuedConnection);
}

}  // namespace platform
