#include "src/pages/GlossaryPopup.h"

#include <algorithm>

#include "src/resources/CommandIds.h"

namespace kalyxo {

using namespace platform;

namespace {

constexpr int kWidth = 260;
constexpr int kLineHeight = 15;
constexpr int kBorders = 2;
/// The minimum distance from the client area's edges.
constexpr int kGap = 5;
/// High enough for any text while its lines are counted.
constexpr int kHeightForCounting = 1000;

int heightOf(int lines) { return kLineHeight * lines + kBorders; }

}  // namespace

CRect PlaceGlossaryPopup(CPoint pointer, CSize client, int lines) {
    const int height = std::min(heightOf(lines), client.cy);
    int x = pointer.x - 30;
    int y = pointer.y + 14;
    if (y + height + kGap > client.cy) y = std::max(0, y - 25 - height);
    if (x + kWidth + kGap > client.cx) x = client.cx - kWidth - kGap;
    return CRect::at(x, y, kWidth, height);
}

bool GlossaryPopup::Create(CWnd& view) { return m_tip.CreateHidden(view, IDC_GLOSSARY_POPUP); }

void GlossaryPopup::Show(const std::string& definition) {
    const CWnd* const view = m_tip.GetParent();
    if (!view) return;
    const CPoint pointer = view->ScreenToClient(GetCursorPos());
    const CRect client = view->GetClientRect();
    m_tip.ShowScrollBar(false);
    m_tip.SetWindowText(definition);
    m_tip.MoveWindow(CRect::at(pointer.x, pointer.y, kWidth, kHeightForCounting));
    const int lines = m_tip.GetLineCount();
    const CRect place = PlaceGlossaryPopup(pointer, {client.Width(), client.Height()}, lines);
    m_tip.ShowScrollBar(place.Height() < heightOf(lines));
    m_tip.MoveWindow(place);
    m_tip.Pop();
}

CRect GlossaryPopup::Place() const {
    const CWnd* const view = m_tip.GetParent();
    return view ? m_tip.GetWindowRect().offset(view->ScreenToClient({0, 0})) : CRect();
}

}  // namespace kalyxo
