#include "platform/framework/FrameWnd.h"

#include <algorithm>
#include <memory>

#include "platform/base/Resources.h"
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
/// Window messages carry coordinates of 16 bits.
constexpr int maxCoordinate = 0x7FFF;
/// No screen is wider; the picture of a larger window would waste memory.
constexpr int maxSide = 8192;

QRect placeOf(const CREATESTRUCT& cs) {
    return {std::clamp(cs.x, -maxCoordinate, maxCoordinate), std::clamp(cs.y, -maxCoordinate, maxCoordinate),
            std::clamp(cs.cx, 0, maxSide), std::clamp(cs.cy, 0, maxSide)};
}

}  // namespace

CFrameWnd::CFrameWnd() = default;

// The window is destroyed first, while its view still exists.
CFrameWnd::~CFrameWnd() { DestroyWindow(); }

const MessageMap* CFrameWnd::GetMessageMap() const {
    static constexpr MessageMapEntry entries[] = {
        OnMessage<WM_CREATE, &CFrameWnd::OnCreate>(),
        OnMessage<WM_SIZE, &CFrameWnd::OnSize>(),
        OnMessage<WM_CLOSE, &CFrameWnd::OnClose>(),
        OnCommandId<&CFrameWnd::OnAppExit>(exitCommand),
    };
    static const MessageMap map{CWnd::GetMessageMap(), entries};
    return &map;
}

bool CFrameWnd::LoadFrame(const CRuntimeClass& viewClass, CDocument& document) {
    CREATESTRUCT cs{.style = FWS_ADDTOTITLE};
    if (GetSafeHwnd() != 0 || !PreCreateWindow(cs)) return false;
    viewClass_ = &viewClass;
    document_ = &document;
    auto* const widget = std::make_unique<FrameWidget>(*this).release();  // deletes itself when it ends
    SetWindowText(LoadString(AFX_IDS_APP_TITLE));
    if (!cs.defaultPlacement) widget->place(placeOf(cs));
    if (SendMessage(WM_CREATE, 0, reinterpret_cast<LPARAM>(&cs)) != -1) return true;
    DestroyWindow();
    return false;
}

void CFrameWnd::InitialUpdateFrame() {
    if (view_) view_->OnInitialUpdate();
    ActivateFrame(CWinApp::Instance().m_nCmdShow);
}

bool CFrameWnd::PreCreateWindow(CREATESTRUCT&) { return true; }

void CFrameWnd::ActivateFrame(int showCommand) {
    if (view_) view_->SetFocus();
    ShowWindow(showCommand);
    WindowWidget* const widget = WindowWidget::of(*this);
    if (!widget || showCommand == SW_SHOWMINIMIZED) return;
    widget->activateWindow();
}

void CFrameWnd::ToggleFullScreen() {
    if (auto* const widget = dynamic_cast<FrameWidget*>(WindowWidget::of(*this))) widget->toggleFullScreen();
}

bool CFrameWnd::IsFullScreen() const {
    const WindowWidget* const widget = WindowWidget::of(*this);
    return widget && widget->isFullScreen();
}

int CFrameWnd::OnCreate(CREATESTRUCT&) {
    if (!viewClass_ || !viewClass_->create) return -1;
    std::unique_ptr<CObject> made = viewClass_->create();
    if (!dynamic_cast<CView*>(made.get())) return -1;
    view_.reset(static_cast<CView*>(made.release()));
    view_->document_ = document_;
    const QSize client = WindowWidget::of(*this)->clientArea().size();
    auto& widget = makeQtChild<SurfaceWidget>(*view_, WindowWidget::of(*this), AFX_IDW_PANE_FIRST);
    widget.takeFocusOnClick();
    widget.setFocusPolicy(Qt::TabFocus);
    return widget.create({WS_CHILD | WS_VISIBLE, 0, 0, client.width(), client.height(), false}) ? 0 : -1;
}

void CFrameWnd::OnSize(UINT type, int width, int height) {
    if (type != SIZE_MINIMIZED && view_) view_->MoveWindow({0, 0, width, height});
}

void CFrameWnd::OnClose() { DestroyWindow(); }

void CFrameWnd::OnAppExit() { SendMessage(WM_CLOSE); }

bool CFrameWnd::OnCommand(WPARAM wParam, LPARAM) { return RunCommand(static_cast<UINT>(wParam & 0xFFFFU)); }

bool CFrameWnd::OnCmdMsg(UINT id, CommandMessage what, CCmdUI* ui) {
    return (view_ && view_->OnCmdMsg(id, what, ui)) || CWnd::OnCmdMsg(id, what, ui) ||
           CWinApp::Instance().OnCmdMsg(id, what, ui);
}

bool CFrameWnd::RunCommand(UINT id) {
    return UpdateCommand(id).Enabled() && OnCmdMsg(id, CommandMessage::execute, nullptr);
}

CCmdUI CFrameWnd::UpdateCommand(UINT id) {
    CCmdUI state;
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
        states.push_back({item.text, item.id, state.Enabled(), state.Checked()});
    }
    return states;
}

}  // namespace platform
