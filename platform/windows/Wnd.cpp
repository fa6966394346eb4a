#include "platform/windows/Wnd.h"
#include "platform/qt/QtChild.h"

#include <QApplication>
#include <QCursor>

#include "platform/base/ControlMessages.h"
#include "platform/input/KeyboardFocus.h"
#include "platform/input/MouseCapture.h"
#include "platform/input/TabOrder.h"
#include "platform/qt/ClientArea.h"
#include "platform/qt/QtConvert.h"
#include "platform/qt/WindowTable.h"
#include "platform/windows/ControlLink.h"
#include "platform/windows/ControlText.h"
#include "platform/windows/MessageFilter.h"
#include "platform/windows/SurfaceWidget.h"
#include "platform/windows/WindowDestruction.h"

namespace platform {

namespace {

/// The widget of any window, also of a standard control.
QWidget* widgetOf(const CWnd& window) { return WindowTable::instance().widget(window.GetSafeHwnd()); }

/// Ends a standard control.
bool endControl(QWidget* control) {
    ControlLink* const link = ControlLink::of(control);
    if (!link) return false;
    moveFocusOut(*control);
    link->detach();
    control->hide();
    control->deleteLater();
    return true;
}

}  // namespace

CWnd::CWnd() = default;

CWnd::~CWnd() { DestroyWindow(); }

const MessageMap* CWnd::GetMessageMap() const {
    static constexpr MessageMap map{nullptr, {}};
    return &map;
}

bool CWnd::CreateWnd(std::string_view text, DWORD style, const CRect& rect, CWnd& parent, UINT id) {
    WindowWidget* const parentWidget = WindowWidget::of(parent);
    if (handle_ != 0 || !parentWidget) return false;
    auto& widget = makeQtChild<SurfaceWidget>(*this, parentWidget, static_cast<int>(id));
    widget.setWindowTitle(toQt(text));
    if (style & WS_TABSTOP) widget.setFocusPolicy(Qt::TabFocus);
    return widget.create({style, rect.left, rect.top, rect.Width(), rect.Height(), false});
}

bool CWnd::DestroyWindow() {
    WindowWidget* const widget = WindowWidget::of(*this);
    return widget ? destroyWindow(*widget) : endControl(widgetOf(*this));
}

CWnd* CWnd::FromHandle(HWND window) {
    if (const WindowWidget* const widget = WindowWidget::find(window)) return widget->owner();
    const ControlLink* const link = ControlLink::of(window);
    return link ? link->object() : nullptr;
}

CWnd* CWnd::GetParent() const { return FromHandle(GetParentWindow(handle_)); }

int CWnd::GetDlgCtrlID() const {
    const WindowEntry* const entry = WindowTable::instance().find(handle_);
    return entry ? entry->id : 0;
}

void CWnd::ShowWindow(int showCommand) {
    if (WindowWidget* const widget = WindowWidget::of(*this)) return widget->showAs(showCommand);
    QWidget* const control = widgetOf(*this);
    if (!control) return;
    if (showCommand == SW_HIDE) moveFocusOut(*control);
    control->setVisible(showCommand != SW_HIDE);
    if (showCommand != SW_HIDE) control->raise();
}

bool CWnd::IsWindowVisible() const {
    const QWidget* const widget = widgetOf(*this);
    return widget && widget->isVisible();
}

void CWnd::EnableWindow(bool enable) {
    if (QWidget* const widget = widgetOf(*this)) widget->setEnabled(enable);
}

bool CWnd::IsWindowEnabled() const {
    const QWidget* const widget = widgetOf(*this);
    return widget && widget->isEnabled() && !isBlockedByDialog(*widget);
}

void CWnd::MoveWindow(const CRect& rect) {
    if (WindowWidget* const widget = WindowWidget::of(*this)) return widget->place(toQt(rect));
    QWidget* const control = widgetOf(*this);
    if (!control) return;
    control->setGeometry(toQt(rect).translated(clientAreaOf(*control->parentWidget()).topLeft()));
}

CRect CWnd::GetClientRect() const {
    const QWidget* const widget = widgetOf(*this);
    const QSize size = widget ? clientAreaOf(*widget).size() : QSize(0, 0);
    return {0, 0, size.width(), size.height()};
}

CRect CWnd::GetWindowRect() const {
    if (const WindowWidget* const widget = WindowWidget::of(*this)) return fromQt(widget->outerRect());
    const QWidget* const control = widgetOf(*this);
    return control ? fromQt(QRect(control->mapToGlobal(QPoint(0, 0)), control->size())) : CRect();
}

CPoint CWnd::ScreenToClient(CPoint p) const { return p - ClientToScreen({0, 0}); }

CPoint CWnd::ClientToScreen(CPoint p) const {
    const QWidget* const widget = widgetOf(*this);
    return widget ? p + fromQt(widget->mapToGlobal(clientAreaOf(*widget).topLeft())) : p;
}

bool CWnd::IsIconic() const {
    const WindowWidget* const widget = WindowWidget::of(*this);
    return widget && widget->isMinimized();
}

bool CWnd::IsZoomed() const {
    const WindowWidget* const widget = WindowWidget::of(*this);
    return widget && widget->isMaximized() && !widget->isMinimized();
}

void CWnd::SetWindowText(std::string_view text) {
    if (QWidget* const widget = widgetOf(*this)) setControlText(*widget, text);
}

std::string CWnd::GetWindowText() const {
    const QWidget* const widget = widgetOf(*this);
    return widget ? controlText(*widget) : std::string();
}

void CWnd::Invalidate(bool erase) {
    if (WindowWidget* const widget = WindowWidget::of(*this)) return widget->invalidate(erase);
    if (QWidget* const control = widgetOf(*this)) mouseWidgetOf(*control).update();
}

LRESULT CWnd::SendMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    return WindowTable::instance().send(handle_, message, wParam, lParam);
}

void CWnd::PostMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    WindowTable::instance().post(handle_, message, wParam, lParam);
}

void CWnd::SetTimer(UINT id, int milliseconds) {
    if (WindowWidget* const widget = WindowWidget::of(*this)) widget->setTimer(id, milliseconds);
}

void CWnd::KillTimer(UINT id) {
    if (WindowWidget* const widget = WindowWidget::of(*this)) widget->killTimer(id);
}

void CWnd::SetCapture() { captureMouse(handle_); }

void CWnd::ReleaseCapture() { releaseMouse(); }

void CWnd::SetFocus() {
    if (QWidget* const widget = widgetOf(*this)) giveFocus(*widget);
}

LRESULT CWnd::WindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
    if (const MessageMapEntry* const row = findMessage(message)) return row->message(*this, wParam, lParam);
    if (message == WM_NOTIFY) return handleNotification(*reinterpret_cast<NMHDR*>(lParam));
    if (message == WM_COMMAND) return OnCommand(wParam, lParam) ? 1 : 0;
    return DefWindowProc(message, wParam, lParam);
}

bool CWnd::OnCommand(WPARAM wParam, LPARAM) {
    // wParam has the code of a control's command in its high half; for menus and buttons that is 0.
    const auto id = static_cast<UINT>(wParam);
    CCmdUI state;
    return OnCmdMsg(id, CommandMessage::update, &state) && state.Enabled() &&
           OnCmdMsg(id, CommandMessage::execute, nullptr);
}

LRESULT CWnd::DefWindowProc(UINT message, WPARAM wParam, LPARAM) {
    if (message == WM_CLOSE) DestroyWindow();
    if (message == WM_KEYDOWN && wParam == VK_TAB) moveFocusOn();
    if (message != WM_ERASEBKGND || wParam == 0) return 0;
    reinterpret_cast<CDC*>(wParam)->FillSolidRect(GetClientRect(), RGB(255, 255, 255));
    return 1;
}

void CWnd::moveFocusOn() {
    QWidget* const widget = widgetOf(*this);
    if (widget && !(inputModifiers() & Qt::ControlModifier)) {
        focusNextInSight(*widget, !(inputModifiers() & Qt::ShiftModifier));
    }
}

void CWnd::SetAccessibleName(std::string_view name) {
    if (QWidget* const widget = widgetOf(*this)) widget->setAccessibleName(toQt(name));
}

CPoint GetCursorPos() { return fromQt(QCursor::pos()); }

CWnd* WindowFromPoint(CPoint screen) {
    const QWidget* const widget = QApplication::widgetAt(toQt(screen));
    return CWnd::FromHandle(WindowTable::instance().nearestHandle(widget));
}

HWND GetParentWindow(HWND window) {
    const QWidget* const widget = WindowTable::instance().widget(window);
    return widget ? WindowTable::instance().nearestHandle(widget->parentWidget()) : 0;
}

LRESULT SendMessage(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    return WindowTable::instance().send(window, message, wParam, lParam);
}

}  // namespace platform
