#include "platform/windows/ChildWindows.h"

#include <QPixmap>
#include <QWidget>

#include "platform/components/PageTools.h"
#include "platform/components/WebPageInspector.h"
#include "platform/qt/ClientArea.h"
#include "platform/qt/QtConvert.h"
#include "platform/qt/WindowTable.h"
#include "platform/windows/ComponentContainer.h"
#include "platform/windows/WindowWidget.h"
#include "platform/windows/Wnd.h"

namespace platform {

namespace {

bool isInside(HWND window, HWND parent) {
    const WindowTable& table = WindowTable::instance();
    while (window != 0 && window != parent) {
        const QWidget* widget = table.widget(window);
        window = widget == nullptr || widget->isWindow() ? 0 : table.nearestHandle(widget->parentWidget());
    }
    return window != 0;
}

template <class Face>
Face* componentIn(HWND window) {
    ComponentHost* const host = componentHostOf(window);
    return host == nullptr ? nullptr : dynamic_cast<Face*>(&host->component());
}

WebPageInspector* browserIn(HWND window) { return componentIn<WebPageInspector>(window); }

}  // namespace

void EnumChildWindows(HWND parent, const std::function<bool(HWND)>& callback) {
    const WindowTable& table = WindowTable::instance();
    for (const HWND window : table.all()) {
        WebPageInspector* const browser = browserIn(window);
        if (browser != nullptr && isInside(window, parent)) browser->updatePluginWindows();
    }
    for (const HWND window : table.all()) {
        if (window != parent && isInside(window, parent) && !callback(window)) return;
    }
}

CRect GetClientRect(HWND window) {
    if (const CWnd* object = CWnd::FromHandle(window)) return object->GetClientRect();
    const QWidget* widget = WindowTable::instance().widget(window);
    return widget == nullptr ? CRect() : CRect{0, 0, widget->width(), widget->height()};
}

CPoint ClientToScreen(HWND window, CPoint p) {
    if (const CWnd* object = CWnd::FromHandle(window)) return object->ClientToScreen(p);
    const QWidget* widget = WindowTable::instance().widget(window);
    return widget == nullptr ? p : fromQt(widget->mapToGlobal(toQt(p)));
}

PageTools* PageToolsIn(HWND window) { return componentIn<PageTools>(window); }

CBitmap PluginPicture(HWND window) {
    const WindowTable& table = WindowTable::instance();
    const QWidget* widget = table.widget(window);
    WebPageInspector* const browser =
        widget == nullptr ? nullptr : browserIn(table.nearestHandle(widget->parentWidget()));
    CBitmap picture;
    if (browser != nullptr) picture.LoadFile(browser->pluginPicture(window));
    return picture;
}

CBitmap WindowPicture(HWND window, CSize size) {
    const QWidget* const widget = WindowTable::instance().widget(window);
    if (widget == nullptr) return {};
    const QPoint corner = widget->mapTo(widget->window(), clientAreaOf(*widget).topLeft());
    const QPixmap seen = widget->window()->grab({corner, QSize(size.cx, size.cy)});
    return CBitmap::FromImage(seen.toImage()).ResizedTo(size.cx, size.cy);
}

}  // namespace platform
