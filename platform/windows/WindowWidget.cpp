#include "platform/windows/WindowWidget.h"

#include <QTimerEvent>
#include <algorithm>

#include "platform/qt/WindowTable.h"
#include "platform/windows/MessageFilter.h"
#include "platform/windows/WindowDestruction.h"

namespace platform {

WindowWidget::WindowWidget(CWnd& owner, QWidget* parent, int controlId) : QWidget(parent), owner_(&owner) {
    installMessageFilter();
    setAttribute(Qt::WA_NoMousePropagation);
    hide();
    handle_ = WindowTable::instance().add({
        .widget = this,
        .className = std::string(owner.GetRuntimeClass().name),
        .id = controlId,
        .proc = [this](UINT message, WPARAM wParam,
                       LPARAM lParam) { return owner_ ? owner_->WindowProc(message, wParam, lParam) : 0; },
    });
    owner.handle_ = handle_;
}

WindowWidget::~WindowWidget() { leave(); }

bool WindowWidget::create(CREATESTRUCT cs) {
    const QRect rect(cs.x, cs.y, cs.cx, cs.cy);
    setGeometry(rect);
    if (send(WM_CREATE, 0, reinterpret_cast<LPARAM>(&cs)) == -1) {
        destroyWindow(*this);
        return false;
    }
    place(rect);
    if (cs.style & WS_VISIBLE) showAs(SW_SHOW);
    return true;
}

WindowWidget* WindowWidget::find(HWND window) {
    return dynamic_cast<WindowWidget*>(WindowTable::instance().widget(window));
}

WindowWidget* WindowWidget::of(const CWnd& window) { return find(window.GetSafeHwnd()); }

void WindowWidget::place(const QRect& rect) {
    const auto* const parent = dynamic_cast<const WindowWidget*>(parentWidget());
    setGeometry(parent ? rect.translated(parent->clientArea().topLeft()) : rect);
    sizeChanged();
}

void WindowWidget::showAs(int showCommand) {
    if (showCommand == SW_HIDE) moveFocusOut(*this);
    setVisible(showCommand != SW_HIDE);
}

void WindowWidget::sizeChanged() {
    const UINT type = sizeType();
    const Size size{type, type == SIZE_MINIMIZED ? QSize(0, 0) : clientArea().size()};
    if (told_ == size) return;
    told_ = size;
    if (type != SIZE_MINIMIZED) fitContent();
    send(WM_SIZE, type, packPoint({size.client.width(), size.client.height()}));
}

LRESULT WindowWidget::send(UINT message, WPARAM wParam, LPARAM lParam) {
    return WindowTable::instance().send(handle_, message, wParam, lParam);
}

void WindowWidget::setTimer(UINT id, int milliseconds) { timers_[id].start(milliseconds, this); }

void WindowWidget::timerEvent(QTimerEvent* event) {
    const auto timer = std::ranges::find_if(
        timers_, [event](const auto& entry) { return entry.second.timerId() == event->timerId(); });
    if (timer != timers_.end()) send(WM_TIMER, timer->first);
}

void WindowWidget::end() {
    leave();
    hide();
    deleteLater();
}

void WindowWidget::leave() {
    if (!owner_) return;
    timers_.clear();
    owner_->handle_ = 0;
    owner_ = nullptr;
    WindowTable::instance().remove(handle_);
}

void moveFocusOut(QWidget& widget) {
    // A top-level window takes its focus with it; the window behind still has its own.
    if (widget.isWindow()) return;
    const QWidget* const focus = widget.window()->focusWidget();
    if (!focus || (focus != &widget && !widget.isAncestorOf(focus))) return;
    QWidget* const above =
        WindowTable::instance().widget(WindowTable::instance().nearestHandle(widget.parentWidget()));
    if (above) above->setFocus(Qt::OtherFocusReason);
}

}  // namespace platform
