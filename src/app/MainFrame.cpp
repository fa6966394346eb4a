#include "src/app/MainFrame.h"

#include <algorithm>

#include "platform/base/Resources.h"
#include "platform/framework/WinApp.h"
#include "platform/machine/Machine.h"
#include "platform/windows/MessageMap.h"
#include "src/resources/CommandIds.h"
#include "src/resources/ResourceIds.h"
#include "src/state/ProgramState.h"
#include "src/state/Settings.h"
#include "src/view/KalyxoView.h"

namespace kalyxo {

using namespace platform;

namespace {

constexpr CSize kMinSize{640, 480};
/// By which a maximised window is larger than the screen, its two borders.
constexpr int kMaximisedBorders = 8;

/// The distance between two saved sides. They may be any numbers, so the difference may wrap around.
int between(int from, int to) {
    return static_cast<int>(static_cast<unsigned>(to) - static_cast<unsigned>(from));
}

/// The rectangle of a frame, enlarged to the minimum size where it is smaller; its corner stays.
CRect withMinSize(const CRect& frame, CSize maximised) {
    const int width = std::max(frame.Width(), std::min(kMinSize.cx, maximised.cx - kMaximisedBorders));
    const int height = std::max(frame.Height(), std::min(kMinSize.cy, maximised.cy - kMaximisedBorders));
    return CRect::at(frame.left, frame.top, width, height);
}

}  // namespace

const CRuntimeClass CMainFrame::runtimeClass = MakeRuntimeClass<CMainFrame>("CMainFrame");

const MessageMap* CMainFrame::GetMessageMap() const {
    static constexpr MessageMapEntry kEntries[] = {
        OnMessage<WM_SIZE, &CMainFrame::OnSize>(),
        OnMessage<WM_DESTROY, &CMainFrame::OnDestroy>(),
        OnCommandId<&CMainFrame::OnFullScreen>(ID_FULL_SCREEN),
    };
    static const MessageMap map{CFrameWnd::GetMessageMap(), kEntries};
    return &map;
}

bool CMainFrame::PreCreateWindow(CREATESTRUCT& cs) {
    cs.style &= ~FWS_ADDTOTITLE;
    CWinApp& app = CWinApp::Instance();
    if (app.m_nCmdShow != SW_SHOWMAXIMIZED) {
        if (TheApp().m_nFrameState == kFrameMaximised) app.m_nCmdShow = SW_SHOWMAXIMIZED;
        const CRect& frame = TheApp().m_rcFrame;
        cs.x = frame.left;
        cs.y = frame.top;
        cs.cx = between(frame.left, frame.right);
        cs.cy = between(frame.top, frame.bottom);
        cs.defaultPlacement = false;
    }
    return CFrameWnd::PreCreateWindow(cs);
}

void CMainFrame::ActivateFrame(int showCommand) {
    SetWindowText(LoadString(IDS_APP_TITLE));
    CFrameWnd::ActivateFrame(showCommand);
}

void CMainFrame::OnSize(UINT type, int width, int height) {
    CFrameWnd::OnSize(type, width, height);
    if (type == SIZE_MINIMIZED) {
        auto* view = static_cast<CKalyxoView*>(GetActiveView());
        if (view != nullptr) view->OnFrameMinimised();
    } else if (type != SIZE_MAXIMIZED) {
        keepMinSize();
    }
}

void CMainFrame::keepMinSize() {
    const CRect frame = GetWindowRect();
    const CRect enlarged =
        withMinSize(frame, {machine().metric(SM_CXMAXIMIZED), machine().metric(SM_CYMAXIMIZED)});
    if (enlarged != frame) MoveWindow(enlarged);
}

/// The layout saved is that of before the frame has covered the screen.
void CMainFrame::OnFullScreen() {
    if (!IsFullScreen()) keepLayout();
    ToggleFullScreen();
}

void CMainFrame::keepLayout() {
    ProgramState& app = TheApp();
    app.m_nFrameState = IsZoomed() ? kFrameMaximised : kFrameNormal;
    if (app.m_nFrameState == kFrameNormal) app.m_rcFrame = GetWindowRect();
}

void CMainFrame::OnDestroy() {
    if (IsIconic()) return;
    if (!IsFullScreen()) keepLayout();
    const ProgramState& app = TheApp();
    if (WriteLayout(machine().registry(), {app.m_nSplitterPos, app.m_nFrameState, app.m_rcFrame})) {
        machine().flushRegistry();
    }
}

}  // namespace kalyxo
