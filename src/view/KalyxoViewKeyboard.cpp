#include "platform/text/GreekLiteral.h"
#include "platform/windows/WindowDC.h"
#include "src/resources/CommandIds.h"
#include "src/resources/MenuTable.h"
#include "src/view/KalyxoView.h"

/// The view for those without a mouse, or who do not see it: the arrow keys go over what the pointer would
/// hover.
namespace kalyxo {

using namespace platform;
using namespace platform::literals;

namespace {

std::string slotName(int slot) {
    switch (slot) {
        case kPeriodicTableSlot:
            return std::string(MenuItemText(ID_PERIODIC_TABLE));
        case kDataAnalyserSlot:
            return std::string(MenuItemText(ID_DATA_ANALYSER));
        case kMainMenuSlot:
            return std::string("Κεντρικό μενού"_gr);
        case kToolbarSlot:
            return std::string(MenuItemText(ID_TOOLBAR));
        default:
            return std::string(MenuItemText(SectionCommands().at(static_cast<std::size_t>(slot)).command));
    }
}

}  // namespace

void CKalyxoView::OnKeyDown(UINT key) {
    switch (key) {
        case VK_LEFT:
        case VK_RIGHT:
        case VK_UP:
        case VK_DOWN:
            chooseByArrow(key);
            break;
        case VK_RETURN:
        case VK_SPACE:
            openChosen();
            break;
        default:
            DefWindowProc(WM_KEYDOWN, key, 0);
    }
}

/// What the pointer is over is shown again.
void CKalyxoView::OnKillFocus(HWND) {
    if (!m_keyboard.Begun()) return;
    m_keyboard.End();
    OnMouseMove(0, ScreenToClient(GetCursorPos()));
}

OpenableItems CKalyxoView::openableItems() const {
    const bool hasMenu = m_mode == ContentMode::MainMenu && !m_menu.Displaced();
    return {m_bar.Layout(), m_bar.Selected(), hasMenu ? std::optional(m_menu.Origin()) : std::nullopt};
}

int CKalyxoView::shownItem() const {
    if (m_bar.Hovered() >= 0) return m_bar.Hovered();
    return m_menu.HotItem() >= 0 ? OpenableItems::IndexOfArea(m_menu.HotItem()) : -1;
}

bool CKalyxoView::keyboardChoiceStands(CPoint point) const {
    return shownItem() >= 0 && m_keyboard.Stands(ClientToScreen(point));
}

void CKalyxoView::chooseByArrow(UINT key) {
    const int item = m_bInterceptionSuppressed ? -1 : KeyboardChoice::Next(openableItems(), shownItem(), key);
    if (item < 0) return;
    m_keyboard.Begin(GetCursorPos());
    const bool slot = OpenableItems::IsSlot(item);
    {
        CClientDC dc(*this);
        m_bar.Hover(slot ? item : -1, dc);
    }
    if (m_mode == ContentMode::MainMenu) hoverMainMenu(slot ? -1 : OpenableItems::SlotFor(item));
    TellPartChosen(*this, item);
}

void CKalyxoView::openChosen() {
    if (!keyboardChoiceStands(ScreenToClient(GetCursorPos()))) return;
    m_keyboard.End();
    openSlot(OpenableItems::SlotFor(shownItem()));
}

std::vector<DrawnPart> CKalyxoView::DrawnParts() const {
    std::vector<DrawnPart> parts;
    const OpenableItems items = openableItems();
    for (const CRect& place : items.Places()) {
        const int index = static_cast<int>(parts.size());
        parts.push_back({slotName(OpenableItems::SlotFor(index)), place,
                         m_keyboard.Begun() && index == shownItem(), index == m_bar.Selected()});
    }
    return parts;
}

}  // namespace kalyxo
