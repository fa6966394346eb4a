#include "platform/framework/FrameWnd.h"

#include <algorithm>
#include <memory>

#include "platform/base/Resources.h"
#include "platform/framework/Document.h"
#include "platform/framework/FrameWidget.h"
#include "platform/framework/View.h"
#include "platform/framework/WinApp.h"
#include "platform/qt/QtChild.h"
#include "platform/qt/QtConvert.h"
#include "platform/windows/MessageMap.h"
#include "platform/windows/SurfaceWidget.h"

namespace platform {

namespace {

constexpr UINT exitCommand = 57665;
/// Window coordinates have 16 bits.
constexpr int farthest = 0x7FFF;
/// No screen is wider; more would ask for more memory than a picture of the window is worth.
constexpr int longestSide = 8192;

QRect placeOf(const CREATESTRUCT& cs) {
    return {std::clamp(cs.x, -farthest, farthest), std::clamp(cs.y, -farthest, farthest),
            std::clamp(cs.cx, 0, longestSide), std::clamp(cs.cy, 0, longestSide)};
}

}  // namespace

CFrameWnd::CFrameWnd() = default;

// The window goes first, while the view that stands in it still exists.
CFrameWnd::~CFrameWnd() { DestroyWindow(); }

const MessageMap* CFrameWnd::GetMessageMap() const {
    static constexpr MessageMapEntry entries[] = {
        OnMessage<WM_CREATE, &CFrameWnd::OnCreate>(),    OnMessage<WM_SIZE, &CFrameWnd::OnSize>(),
        OnMessage<WM_DESTROY, &CFrameWnd::OnDestroy>(),  OnMessage<WM_CLOSE, &CFrameWnd::OnClose>(),
        OnCommandId<&CFrameWnd::OnAppExit>(exitCommand),
    };
    static const MessageMap map{CWnd::GetMessageMap(), entries};
    return &map;
}

bool CFrameWnd::LoadFrame(const CRuntimeClass& viewClass, CDocument& document) {
    CREATESTRUCT cs{.style = FWS_ADDTOTITLE};
    if (GetSafeHwnd() != 0 || !PreCreateWindow(cs)) return false;
    m_viewClass = &viewClass;
    m_document = &document;
    auto* const widget = std::make_unique<FrameWidget>(*this).release();  // goes when it is closed
    SetWindowText(LoadString(AFX_IDS_APP_TITLE));
    if (!cs.defaultPlacement) widget->place(placeOf(cs));
    if (SendMessage(WM_CREATE, 0, reinterpret_cast<LPARAM>(&cs)) != -1) return true;
    DestroyWindow();
    return false;
}

void CFrameWnd::InitialUpdateFrame() {
    if (m_view) m_view->OnInitialUpdate();
    ActivateFrame(CWinApp::instance().m_nCmdShow);
}

bool CFrameWnd::PreCreateWindow(CREATESTRUCT&) { return true; }

void CFrameWnd::ActivateFrame(int showCommand) {
    if (m_view) m_view->SetFocus();
    ShowWindow(showCommand);
    WindowWidget* const widget = WindowWidget::of(*this);
    if (!widget || showCommand == SW_SHOWMINIMIZED) return;
    widget->activateWindow();
}

int CFrameWnd::OnCreate(CREATESTRUCT&) {
    if (!m_viewClass || !m_viewClass->create) return -1;
    std::unique_ptr<CObject> made = m_viewClass->create();
    if (!dynamic_cast<CView*>(made.get())) return -1;
    m_view.reset(static_cast<CView*>(made.release()));
    m_view->m_pDocument = m_document;
    const QSize client = WindowWidget::of(*this)->clientArea().size();
    auto& widget = makeQtChild<SurfaceWidget>(*m_view, WindowWidget::of(*this), AFX_IDW_PANE_FIRST);
    widget.takeFocusOnClick();
    widget.setFocusPolicy(Qt::TabFocus);
    return widget.create({WS_CHILD | WS_VISIBLE, 0, 0, client.width(), client.height(), false}) ? 0 : -1;
}

void CFrameWnd::OnSize(UINT type, int width, int height) {
    if (type != SIZE_MINIMIZED && m_view) m_view->MoveWindow({0, 0, width, height});
}

void CFrameWnd::OnDestroy() {}

void CFrameWnd::OnClose() { DestroyWindow(); }

void CFrameWnd::OnAppExit() { SendMessage(WM_CLOSE); }

bool CFrameWnd::OnCommand(WPARAM wParam, LPARAM) { return RunCommand(static_cast<UINT>(wParam & 0xFFFFU)); }

bool CFrameWnd::OnCmdMsg(UINT id, CommandMessage what, CCmdUI* ui) {
    return (m_view && m_view->OnCmdMsg(id, what, ui)) || CWnd::OnCmdMsg(id, what, ui) ||
           CWinApp::instance().OnCmdMsg(id, what, ui);
}

bool CFrameWnd::RunCommand(UINT id) {
    return UpdateCommand(id).enabled() && OnCmdMsg(id, CommandMessage::execute, nullptr);
}

CCmdUI CFrameWnd::UpdateCommand(UINT id) {
    CCmdUI state(id);
    if (!OnCmdMsg(id, CommandMessage::update, &state)) state.Enable(false);
    return state;
}

std::vector<MenuItemState> CFrameWnd::MenuState(std::size_t menu) {
    std::vector<MenuItemState> states;
    if (menu >= Resources().menu.size()) return states;
    for (const MenuItem& item : Resources().menu[menu].items) {
        if (item.text.empty()) {
            states.push_back({});
            continue;
        }
        const CCmdUI state = UpdateCommand(item.id);
        states.push_back({item.text, item.id, state.enabled(), state.checked()});
    }
    return states;
}

}  // namespace platform
