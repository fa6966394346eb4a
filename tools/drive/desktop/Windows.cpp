#include "tools/drive/desktop/Windows.h"

#include <QApplication>
#include <QWidget>
#include <map>

#include "platform/dialogs/Dialog.h"
#include "platform/dialogs/DialogControls.h"
#include "platform/input/KeyboardFocus.h"
#include "platform/qt/QtConvert.h"
#include "platform/qt/WindowTable.h"
#include "platform/windows/ControlText.h"
#include "platform/windows/Wnd.h"
#include "src/app/MainFrame.h"
#include "src/view/KalyxoView.h"

#include "tools/drive/desktop/Program.h"

namespace drive {

using namespace platform;

namespace {

WindowTable& table() { return WindowTable::instance(); }

HWND handleOf(const CWnd* window) { return window == nullptr ? 0 : window->GetSafeHwnd(); }

HWND find(NamedWindow name) {
    switch (name) {
        case NamedWindow::view:
            return handleOf(Program::view());
        case NamedWindow::frame:
            return handleOf(Program::frame());
        case NamedWindow::splitter:
            return Program::view() == nullptr ? 0 : Program::view()->Inspection().splitter;
        case NamedWindow::panel:
            return Program::view() == nullptr ? 0 : Program::view()->Inspection().panel;
    }
    return 0;
}

HWND find(IdName name) {
    if (const CDialog* dialog = activeDialog()) {
        const QWidget* control = dialogControl(dialog->GetSafeHwnd(), name.id);
        if (control != nullptr) return table().handleOf(control);
    }
    const HWND view = find(NamedWindow::view);
    if (view == 0) return 0;
    for (const HWND window : table().all()) {
        const bool inView = table().nearestHandle(table().widget(window)->parentWidget()) == view;
        if (inView && table().find(window)->id == name.id) return window;
    }
    return 0;
}

HWND find(HandleName name) { return table().find(name.handle) == nullptr ? 0 : name.handle; }

/// The window that holds another; 0 for a window of its own, such as a dialog.
HWND parentOf(HWND window) {
    const QWidget& widget = *table().widget(window);
    const bool standsAlone = widget.isWindow() && widget.windowType() != Qt::Popup;
    return standsAlone ? 0 : table().nearestHandle(widget.parentWidget());
}

using Children = std::multimap<HWND, HWND>;

Json windowJson(HWND window, const Children& children) {
    const WindowEntry& entry = *table().find(window);
    Json inside = Json::array();
    const auto [first, last] = children.equal_range(window);
    for (auto at = first; at != last; ++at) inside.push_back(windowJson(at->second, children));
    return {{"handle", window},
            {"class", text(entry.className)},
            {"text", text(controlText(*entry.widget))},
            {"id", entry.id},
            {"rect", rectangle(outerRect(window))},
            {"visible", entry.widget->isVisible()},
            {"enabled", entry.widget->isEnabled()},
            {"focus", GetFocus() == window},
            {"children", std::move(inside)}};
}

}  // namespace

HWND findWindow(const WindowName& name) {
    return std::visit([](const auto& which) { return find(which); }, name);
}

Result<HWND> chooseWindow(const std::string* word) {
    const std::optional<WindowName> name = word == nullptr ? NamedWindow::view : windowNameOf(*word);
    if (!name) return Failure{"no window is named " + *word};
    const HWND window = findWindow(*name);
    if (window == 0) return Failure{"there is no such window now"};
    return window;
}

CDialog* activeDialog() {
    return dynamic_cast<CDialog*>(CWnd::FromHandle(table().handleOf(QApplication::activeModalWidget())));
}

QWidget& widgetOf(HWND window) { return *table().widget(window); }

CPoint clientToScreen(HWND window, CPoint p) {
    if (const CWnd* object = CWnd::FromHandle(window)) return object->ClientToScreen(p);
    return fromQt(widgetOf(window).mapToGlobal(toQt(p)));
}

CRect outerRect(HWND window) {
    if (const CWnd* object = CWnd::FromHandle(window)) return object->GetWindowRect();
    const QWidget& widget = widgetOf(window);
    return fromQt(QRect(widget.mapToGlobal(QPoint(0, 0)), widget.size()));
}

Json windowTree() {
    Children children;
    for (const HWND window : table().all()) children.emplace(parentOf(window), window);
    Json tree = Json::array();
    const auto [first, last] = children.equal_range(0);
    for (auto at = first; at != last; ++at) tree.push_back(windowJson(at->second, children));
    return tree;
}

}  // namespace drive
