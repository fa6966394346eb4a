#include "platform/input/TabOrder.h"

#include <QWidget>

#include "platform/qt/WindowTable.h"

namespace platform {

namespace {

bool takesTab(const QWidget& widget, const QWidget& window) {
    return widget.window() == &window && widget.isVisible() && widget.isEnabled() && !widget.focusProxy() &&
           (widget.focusPolicy() & Qt::TabFocus) && isInSight(widget);
}

}  // namespace

void TabAfter(HWND window, HWND former) {
    QWidget* const next = WindowTable::instance().widget(window);
    QWidget* last = WindowTable::instance().widget(former);
    if (!next || !last) return;
    const QWidget* const around = last;
    for (QWidget* inside = last; inside == around || around->isAncestorOf(inside);
         inside = inside->nextInFocusChain()) {
        // Qt cannot order anything after a widget that takes no focus.
        if (inside->focusPolicy() & Qt::TabFocus) last = inside;
    }
    QWidget::setTabOrder(last, next);
}

bool isInSight(const QWidget& widget) {
    const QWidget* const window = widget.window();
    return window->rect().intersects({widget.mapTo(window, QPoint()), widget.size()});
}

bool focusNextInSight(QWidget& from, bool forward) {
    const auto after = [forward](const QWidget& widget) {
        return forward ? widget.nextInFocusChain() : widget.previousInFocusChain();
    };
    for (QWidget* next = after(from); next && next != &from; next = after(*next)) {
        if (!takesTab(*next, *from.window())) continue;
        next->setFocus(forward ? Qt::TabFocusReason : Qt::BacktabFocusReason);
        return true;
    }
    return false;
}

void focusAroundComponent(const QWidget& area) {
    const QWidget* const component = area.parentWidget();
    if (QWidget* const around = component ? component->parentWidget() : nullptr) {
        around->setFocus(Qt::OtherFocusReason);
    }
}

}  // namespace platform
