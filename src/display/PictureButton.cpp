#include "src/display/PictureButton.h"

#include <algorithm>
#include <initializer_list>

#include "platform/windows/MessageMap.h"
#include "src/display/FrameColours.h"

namespace kalyxo {

using namespace platform;

namespace {

/// The same for all buttons.
HWND focusReturn = 0;

/// The pixels of a horizontal or vertical line, including its start but not its end.
CRect linePixels(CPoint from, CPoint to) {
    if (from.y == to.y) {
        const int left = std::min(from.x, to.x + 1);
        return {left, from.y, std::max(from.x + 1, to.x), from.y + 1};
    }
    const int top = std::min(from.y, to.y + 1);
    return {from.x, top, from.x + 1, std::max(from.y + 1, to.y)};
}

void drawLines(CDC& dc, COLORREF colour, std::initializer_list<CPoint> corners) {
    for (const CPoint* corner = corners.begin(); corner + 1 != corners.end(); ++corner) {
        dc.FillSolidRect(linePixels(corner[0], corner[1]), colour);
    }
}

void drawRaised(CDC& dc, int w, int h) {
    drawLines(dc, kWhite, {{w - 2, 0}, {0, 0}, {0, h - 1}});
    drawLines(dc, kBlack, {{0, h - 1}, {w - 1, h - 1}, {w - 1, -1}});
    drawLines(dc, kDarkGrey, {{w - 2, 1}, {w - 2, h - 2}, {1, h - 2}});
}

void drawPressed(CDC& dc, int w, int h) {
    drawLines(dc, kWhite, {{w - 1, 0}, {w - 1, h - 1}, {-1, h - 1}});
    drawLines(dc, kBlack, {{0, h - 2}, {0, 0}, {w - 1, 0}});
    drawLines(dc, kDarkGrey, {{w - 2, 1}, {1, 1}, {1, h - 2}});
}

}  // namespace

HWND CPictureButton::FocusReturn() { return focusReturn; }

const MessageMap* CPictureButton::GetMessageMap() const {
    static constexpr MessageMapEntry kEntries[] = {OnMessage<WM_SETFOCUS, &CPictureButton::OnSetFocus>()};
    static const MessageMap map{CButton::GetMessageMap(), kEntries};
    return &map;
}

bool CPictureButton::Create(const CRect& rect, CWnd& parent, UINT id, UINT picture, std::string_view name) {
    if (!m_picture.LoadBitmap(picture)) return false;
    return CButton::Create(name, WS_CHILD | WS_VISIBLE | BS_OWNERDRAW, rect, parent, id);
}

void CPictureButton::DrawItem(const DRAWITEMSTRUCT& item) {
    const int w = item.rcItem.Width();
    const int h = item.rcItem.Height();
    item.dc.FillSolidRect(item.rcItem, kLightGrey);
    if (item.selected) {
        drawPressed(item.dc, w, h);
    } else {
        drawRaised(item.dc, w, h);
    }
    CDC source = CDC::CreateCompatibleDC(item.dc);
    source.SelectObject(m_picture);
    const int sunk = item.selected ? 1 : 0;
    item.dc.BitBlt((w - m_picture.Width()) / 2 + sunk, (h - m_picture.Height()) / 2 + sunk, m_picture.Width(),
                   m_picture.Height(), source, 0, 0);
}

void CPictureButton::OnSetFocus(HWND loser) {
    Default();
    const HWND around = GetParentWindow(loser);
    if (around != 0 && around != GetParent()->GetSafeHwnd()) focusReturn = loser;
}

}  // namespace kalyxo
