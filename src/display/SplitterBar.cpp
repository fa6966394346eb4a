#include "src/display/SplitterBar.h"

#include <algorithm>
#include <array>

#include "platform/base/ControlMessages.h"
#include "platform/base/Resources.h"
#include "platform/input/KeyboardFocus.h"
#include "platform/windows/MessageMap.h"
#include "platform/windows/WindowDC.h"
#include "src/display/FrameColours.h"
#include "src/resources/CommandIds.h"
#include "src/resources/ResourceIds.h"

namespace kalyxo {

using namespace platform;

namespace {

/// Pixels by which an arrow key moves the bar.
constexpr int kKeyStep = 8;

/// The colours of the lines of the raised bar.
constexpr std::array<COLORREF, CSplitterBar::kThickness> kRaised = {
    kLightGrey, kWhite, kLightGrey, kLightGrey, kLightGrey, kDarkGrey, kBlack};

/// The value brought into [min, max]. When max is below min, the result is min.
int clampTo(int value, int min, int max) { return std::max(min, std::min(value, max)); }

}  // namespace

CSplitterBar::CSplitterBar() { m_pattern.LoadBitmap(IDB_SPLITTER_PATTERN); }

const CRuntimeClass& CSplitterBar::GetRuntimeClass() const {
    static constexpr CRuntimeClass kRuntimeClass{"CSplitterBar"};
    return kRuntimeClass;
}

const MessageMap* CSplitterBar::GetMessageMap() const {
    static constexpr MessageMapEntry kEntries[] = {
        OnMessage<WM_PAINT, &CSplitterBar::OnPaint>(),
        OnMessage<WM_SETCURSOR, &CSplitterBar::OnSetCursor>(),
        OnMessage<WM_LBUTTONDOWN, &CSplitterBar::OnLButtonDown>(),
        OnMessage<WM_LBUTTONUP, &CSplitterBar::OnLButtonUp>(),
        OnMessage<WM_MOUSEMOVE, &CSplitterBar::OnMouseMove>(),
        OnMessage<WM_KEYDOWN, &CSplitterBar::OnKeyDown>(),
        OnMessage<WM_SETFOCUS, &CSplitterBar::OnFocus>(),
        OnMessage<WM_KILLFOCUS, &CSplitterBar::OnFocus>(),
    };
    static const MessageMap map{CWnd::GetMessageMap(), kEntries};
    return &map;
}

bool CSplitterBar::Create(int x, int y, int length, bool horizontal, int min, int max, CWnd& parent) {
    m_nMin = min;
    m_nMax = max;
    m_bHorizontal = horizontal;
    m_pParent = &parent;
    m_bDragging = false;
    m_nPos = clampTo(horizontal ? y : x, min, max);
    m_nFixed = horizontal ? x : y;
    m_cursor = CCursor::FromResource(horizontal ? IDC_RESIZE_VERTICAL : IDC_RESIZE_HORIZONTAL);
    // The text is never shown; scripts of the desktop find the window by it.
    if (!CreateWnd("ESGSplit", WS_CHILD | WS_VISIBLE | WS_TABSTOP, barRect(length), parent, IDC_SPLITTER))
        return false;
    SetAccessibleName(LoadString(IDS_SPLITTER));
    return true;
}

void CSplitterBar::SetRange(int min, int max) {
    m_nMin = min;
    m_nMax = max;
    const int old = along(m_pParent->ScreenToClient(GetWindowRect().TopLeft()));
    if (old < min) {
        moveTo(min);
        notifyParent();
    }
    if (old > max) {
        moveTo(max);
        notifyParent();
    }
}

void CSplitterBar::MoveBar(int position) {
    moveTo(clampTo(position, m_nMin, m_nMax));
    notifyParent();
}

void CSplitterBar::SetLength(int length) { MoveWindow(barRect(length)); }

void CSplitterBar::OnPaint() {
    CPaintDC dc(*this);
    if (m_bDragging || GetFocus() == GetSafeHwnd()) {
        paintDragged(dc);
    } else {
        paintRaised(dc);
    }
}

bool CSplitterBar::OnSetCursor() {
    m_cursor.Set();
    return true;
}

void CSplitterBar::OnLButtonDown(UINT, CPoint point) {
    m_bDragging = true;
    SetCapture();
    Invalidate();
    m_nGrab = along(point);
}

void CSplitterBar::OnLButtonUp(UINT, CPoint) {
    m_bDragging = false;
    ReleaseCapture();
    Invalidate();
    notifyParent();
}

void CSplitterBar::OnMouseMove(UINT, CPoint point) {
    if (!m_bDragging) return;
    const CPoint inParent = m_pParent->ScreenToClient(ClientToScreen(point));
    moveTo(clampTo(along(inParent) - m_nGrab, m_nMin, m_nMax));
    m_pParent->SendMessage(WM_PAINT);
}

/// The two arrow keys in the direction of movement move the bar. Every other key gets its default handling.
void CSplitterBar::OnKeyDown(UINT key) {
    const bool back = key == (m_bHorizontal ? VK_UP : VK_LEFT);
    if (!back && key != (m_bHorizontal ? VK_DOWN : VK_RIGHT)) {
        DefWindowProc(WM_KEYDOWN, key, 0);
        return;
    }
    MoveBar(m_nPos + (back ? -kKeyStep : kKeyStep));
}

void CSplitterBar::OnFocus(HWND) { Invalidate(); }

CRect CSplitterBar::barRect(int length) const {
    return m_bHorizontal ? CRect::at(m_nFixed, m_nPos, length, kThickness)
                         : CRect::at(m_nPos, m_nFixed, kThickness, length);
}

int CSplitterBar::currentLength() const {
    const CRect rect = GetWindowRect();
    return m_bHorizontal ? rect.Width() : rect.Height();
}

void CSplitterBar::moveTo(int position) {
    const int length = currentLength();
    m_nPos = position;
    MoveWindow(barRect(length));
}

void CSplitterBar::notifyParent() {
    m_pParent->SendMessage(WM_COMMAND, static_cast<WPARAM>(m_nPos), IDC_SPLITTER);
}

void CSplitterBar::paintRaised(CDC& dc) const {
    const CRect client = GetClientRect();
    for (int line = 0; line < kThickness; ++line) {
        const CRect rect =
            m_bHorizontal ? CRect::at(0, line, client.Width(), 1) : CRect::at(line, 0, 1, client.Height());
        dc.FillSolidRect(rect, kRaised[static_cast<std::size_t>(line)]);
    }
}

void CSplitterBar::paintDragged(CDC& dc) const {
    CRect rect = GetClientRect();
    dc.FillSolidRect(rect, kWhite);
    int& near = m_bHorizontal ? rect.top : rect.left;
    int& far = m_bHorizontal ? rect.bottom : rect.right;
    ++near;
    --far;
    dc.FillRect(rect, CBrush::Pattern(m_pattern));
}

}  // namespace kalyxo
