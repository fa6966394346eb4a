#include "src/display/TipEdit.h"

#include "platform/windows/MessageMap.h"
#include "src/display/FrameColours.h"

namespace kalyxo {

using namespace platform;

namespace {

constexpr COLORREF kLightYellow = RGB(255, 255, 224);
constexpr LOGFONT kFont{"Arial Greek", -11};

}  // namespace

const CRuntimeClass CTipEdit::runtimeClass{"CTipEdit"};

const MessageMap* CTipEdit::GetMessageMap() const {
    static constexpr MessageMapEntry kEntries[] = {
        OnMessage<WM_SETFOCUS, &CTipEdit::OnSetFocus>(),
        OnMessage<WM_KILLFOCUS, &CTipEdit::OnKillFocus>(),
        OnMessage<WM_LBUTTONDOWN, &CTipEdit::OnLButtonDown>(),
        OnMessage<WM_KEYDOWN, &CTipEdit::OnKeyDown>(),
        OnMessage<WM_SETCURSOR, &CTipEdit::OnSetCursor>(),
    };
    static const MessageMap map{CEdit::GetMessageMap(), kEntries};
    return &map;
}

bool CTipEdit::CreateHidden(CWnd& parent, UINT id) {
    if (!Create(WS_CHILD | WS_BORDER | ES_MULTILINE, parent.GetClientRect(), parent, id)) return false;
    SetFont(kFont);
    SetColors(kBlack, kLightYellow);
    SetReadOnly();
    return true;
}

void CTipEdit::Pop() {
    ShowWindow(SW_SHOW);
    SetFocus();
    SetCapture();
    // A window that captures the mouse is not asked for its cursor.
    m_cursor.Set();
}

void CTipEdit::Hide() {
    if (!IsWindowVisible()) return;
    ReleaseCapture();
    ShowWindow(SW_HIDE);
}

void CTipEdit::dismiss() {
    Hide();
    if (CWnd* const former = FromHandle(m_hwndFormer)) former->SetFocus();
}

void CTipEdit::OnSetFocus(HWND from) {
    m_hwndFormer = from;
    m_cursor.Set();
    HideCaret();
}

void CTipEdit::OnKillFocus(HWND) { Hide(); }

void CTipEdit::OnLButtonDown(UINT, CPoint) { dismiss(); }

void CTipEdit::OnKeyDown(UINT) { dismiss(); }

bool CTipEdit::OnSetCursor() {
    m_cursor.Set();
    return true;
}

}  // namespace kalyxo
