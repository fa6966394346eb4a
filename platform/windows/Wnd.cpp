#include "platform/windows/Wnd.h"

#include <QApplication>
#include <QCursor>

#include "platform/framework/FrameWnd.h"
#include "platform/handles/WindowTable.h"
#include "platform/windows/MouseCapture.h"
#include "platform/windows/QtConvert.h"
#include "platform/windows/SurfaceWidget.h"
#include "platform/windows/WindowDestruction.h"

namespace platform {

CWnd::CWnd() = default;

CWnd::~CWnd() { DestroyWindow(); }

const MessageMap* CWnd::GetMessageMap() const {
    static constexpr MessageMap map{nullptr, {}};
    return &map;
}

bool CWnd::CreateWnd(std::string_view text, DWORD style, const CRect& rect, CWnd& parent, UINT id) {
    WindowWidget* const parentWidget = WindowWidget::of(parent);
    if (m_hWnd != 0 || !parentWidget) return false;
    auto* const widget = new SurfaceWidget(*this, parentWidget, static_cast<int>(id));
    widget->setWindowTitle(toQt(text));
    return widget->create({style, rect.left, rect.top, rect.Width(), rect.Height(), false});
}

bool CWnd::DestroyWindow() {
    WindowWidget* const widget = WindowWidget::of(*this);
    return widget && destroyWindow(*widget);
}

CWnd* CWnd::FromHandle(HWND window) {
    const WindowWidget* const widget = WindowWidget::find(window);
    return widget ? widget->owner() : nullptr;
}

CWnd* CWnd::GetParent() const {
    const WindowWidget* const widget = WindowWidget::of(*this);
    return widget ? FromHandle(WindowTable::instance().nearestHandle(widget->parentWidget())) : nullptr;
}

CFrameWnd* CWnd::GetParentFrame() const {
    for (CWnd* window = GetParent(); window; window = window->GetParent()) {
        if (auto* const frame = dynamic_cast<CFrameWnd*>(window)) return frame;
    }
    return nullptr;
}

int CWnd::GetDlgCtrlID() const {
    const WindowEntry* const entry = WindowTable::instance().find(m_hWnd);
    return entry ? entry->id : 0;
}

void CWnd::ShowWindow(int showCommand) {
    if (WindowWidget* const widget = WindowWidget::of(*this)) widget->showAs(showCommand);
}

bool CWnd::IsWindowVisible() const {
    const WindowWidget* const widget = WindowWidget::of(*this);
    return widget && widget->isVisible();
}

void CWnd::MoveWindow(const CRect& rect) {
    if (WindowWidget* const widget = WindowWidget::of(*this)) widget->place(toQt(rect));
}

CRect CWnd::GetClientRect() const {
    const WindowWidget* const widget = WindowWidget::of(*this);
    const QSize size = widget ? widget->clientArea().size() : QSize(0, 0);
    return {0, 0, size.width(), size.height()};
}

CRect CWnd::GetWindowRect() const {
    const WindowWidget* const widget = WindowWidget::of(*this);
    return widget ? fromQt(widget->outerRect()) : CRect();
}

CPoint CWnd::ScreenToClient(CPoint p) const { return p - ClientToScreen({0, 0}); }

CPoint CWnd::ClientToScreen(CPoint p) const {
    const WindowWidget* const widget = WindowWidget::of(*this);
    return widget ? p + fromQt(widget->mapToGlobal(widget->clientArea().topLeft())) : p;
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
    if (WindowWidget* const widget = WindowWidget::of(*this)) widget->setWindowTitle(toQt(text));
}

std::string CWnd::GetWindowText() const {
    const WindowWidget* const widget = WindowWidget::of(*this);
    return widget ? fromQt(widget->windowTitle()) : std::string();
}

void CWnd::Invalidate(bool erase) {
    if (WindowWidget* const widget = WindowWidget::of(*this)) widget->invalidate(erase);
}

LRESULT CWnd::SendMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    return WindowTable::instance().send(m_hWnd, message, wParam, lParam);
}

void CWnd::PostMessage(UINT message, WPARAM wParam, LPARAM lParam) {
    WindowTable::instance().post(m_hWnd, message, wParam, lParam);
}

void CWnd::SetTimer(UINT id, int milliseconds) {
    if (WindowWidget* const widget = WindowWidget::of(*this)) widget->setTimer(id, milliseconds);
}

void CWnd::KillTimer(UINT id) {
    if (WindowWidget* const widget = WindowWidget::of(*this)) widget->killTimer(id);
}

void CWnd::SetCapture() { captureMouse(m_hWnd); }

void CWnd::ReleaseCapture() { releaseMouse(); }

void CWnd::SetFocus() {
    WindowWidget* const widget = WindowWidget::of(*this);
    if (!widget) return;
    if (widget->isVisible() && !widget->isActiveWindow()) widget->activateWindow();
    widget->setFocus(Qt::OtherFocusReason);
}

LRESULT CWnd::WindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
    if (const MessageMapEntry* const row = findMessage(message)) return row->message(*this, wParam, lParam);
    if (message == WM_COMMAND) return OnCommand(wParam, lParam) ? 1 : 0;
    return DefWindowProc(message, wParam, lParam);
}

bool CWnd::OnCommand(WPARAM wParam, LPARAM) {
    const auto id = static_cast<UINT>(wParam & 0xFFFFU);
    CCmdUI state(id);
    return OnCmdMsg(id, CommandMessage::update, &state) && state.enabled() &&
           OnCmdMsg(id, CommandMessage::execute, nullptr);
}

LRESULT CWnd::DefWindowProc(UINT message, WPARAM wParam, LPARAM) {
    if (message == WM_CLOSE) DestroyWindow();
    if (message != WM_ERASEBKGND || wParam == 0) return 0;
    reinterpret_cast<CDC*>(wParam)->FillSolidRect(GetClientRect(), RGB(255, 255, 255));
    return 1;
}

CPoint GetCursorPos() { return fromQt(QCursor::pos()); }

CWnd* WindowFromPoint(CPoint screen) {
    const QWidget* const widget = QApplication::widgetAt(toQt(screen));
    return CWnd::FromHandle(WindowTable::instance().nearestHandle(widget));
}

HWND GetFocus() { return WindowTable::instance().nearestHandle(QApplication::focusWidget()); }

LRESULT SendMessage(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    return WindowTable::instance().send(window, message, wParam, lParam);
}

}  // namespace platform
