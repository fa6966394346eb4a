#include "src/view/HotItems.h"

#include <string>

#include "platform/base/Resources.h"
#include "platform/windows/WindowDC.h"
#include "src/resources/CommandIds.h"
#include "src/resources/MenuTable.h"
#include "src/resources/ResourceIds.h"

namespace kalyxo {

using namespace platform;

namespace {

std::string_view slotName(int slot) {
    switch (slot) {
        case kPeriodicTableSlot:
            return MenuItemText(ID_PERIODIC_TABLE);
        case kDataAnalyserSlot:
            return MenuItemText(ID_DATA_ANALYSER);
        case kMainMenuSlot:
            return LoadString(IDS_MAIN_MENU);
        case kToolbarSlot:
            return MenuItemText(ID_TOOLBAR);
        default:
            return MenuItemText(SectionCommands().at(static_cast<std::size_t>(slot)).command);
    }
}

}  // namespace

HotItems::HotItems(CWnd& view, const ContentPanes& panes)
    : m_view(view), m_panes(panes), m_handCursor(CCursor::FromResource(IDC_HAND_CURSOR)) {}

void HotItems::PaintMainMenu(CDC& dc) {
    const CRect client = m_view.GetClientRect();
    m_bar.DrawBar(dc);
    m_menu.Paint(dc, {client.Width(), client.Height()});
}

void HotItems::Draw(CDC& dc) {
    PaintMainMenu(dc);
    // The pointer may still be on it, and would not make it hot a second time.
    if (m_menu.HotItem() >= 0) m_menu.Highlight(dc, m_menu.HotItem());
}

void HotItems::Resize(int width) {
    m_menu.Displace();
    m_bar.SetWidth(width);
}

void HotItems::SelectSlot(int slot) {
    CClientDC dc(m_view);
    m_bar.Select(slot, dc);
}

void HotItems::FollowPointer(CPoint point) {
    if (hotItem() >= 0 && m_keyboard.Stands(m_view.ClientToScreen(point))) return;
    m_keyboard.End();
    const bool offBar = HitTestBar(point);
    if (m_panes.Mode() == ContentMode::MainMenu) {
        hoverMainMenu(offBar && isUnder(point) ? m_menu.ItemAt(point) : -1);
    }
}

bool HotItems::HitTestBar(CPoint point) {
    const int slot = isUnder(point) ? m_bar.Layout().SlotAt(point) : -1;
    CClientDC dc(m_view);
    m_bar.Hover(slot, dc);
    return slot < 0;
}

bool HotItems::isUnder(CPoint point) const {
    return WindowFromPoint(m_view.ClientToScreen(point)) == &m_view;
}

void HotItems::hoverMainMenu(int item) {
    const int former = m_menu.HotItem();
    if (item == former) return;
    CClientDC dc(m_view);
    if (former >= 0) {
        m_menu.ClearHotItem();
        PaintMainMenu(dc);
    }
    if (item >= 0) m_menu.Highlight(dc, item);
}

int HotItems::SlotClicked(CPoint point) {
    if (m_keyboard.Begun()) {
        m_keyboard.End();
        FollowPointer(point);
    }
    return m_bar.Hovered() >= 0 ? m_bar.Hovered() : m_menu.HotItem();
}

bool HotItems::ShowHand() const {
    if (m_keyboard.Begun()) return false;
    const bool overSlot = m_bar.Hovered() >= 0 && m_bar.Hovered() != m_bar.Selected();
    if (!overSlot && m_menu.HotItem() < 0) return false;
    m_handCursor.Set();
    return true;
}

OpenableItems HotItems::items() const {
    const bool hasMenu = m_panes.Mode() == ContentMode::MainMenu && !m_menu.Displaced();
    return {m_bar.Layout(), m_bar.Selected(), hasMenu ? std::optional(m_menu.Origin()) : std::nullopt};
}

/// Its index among the items, −1 when none is hot.
int HotItems::hotItem() const {
    if (m_bar.Hovered() >= 0) return m_bar.Hovered();
    return m_menu.HotItem() >= 0 ? OpenableItems::IndexOfArea(m_menu.HotItem()) : -1;
}

void HotItems::ChooseByArrow(UINT key) { choose(KeyboardChoice::Next(items(), hotItem(), key)); }

bool HotItems::ChooseByTab() {
    const int item = KeyboardChoice::NextStop(items(), m_keyboard.Begun() ? hotItem() : -1);
    choose(item);
    return item >= 0;
}

void HotItems::choose(int item) {
    if (item < 0) return;
    m_keyboard.Begin(GetCursorPos());
    const bool slot = OpenableItems::IsSlot(item);
    {
        CClientDC dc(m_view);
        m_bar.Hover(slot ? item : -1, dc);
    }
    if (m_panes.Mode() == ContentMode::MainMenu) hoverMainMenu(slot ? -1 : OpenableItems::SlotFor(item));
    TellPartChosen(m_view, item);
}

int HotItems::TakeChosenSlot() {
    if (hotItem() < 0 || !m_keyboard.Stands(GetCursorPos())) return -1;
    m_keyboard.End();
    return OpenableItems::SlotFor(hotItem());
}

void HotItems::EndChoice() {
    if (!m_keyboard.Begun()) return;
    m_keyboard.End();
    FollowPointer(m_view.ScreenToClient(GetCursorPos()));
}

std::vector<DrawnPart> HotItems::Parts() const {
    std::vector<DrawnPart> parts;
    const OpenableItems all = items();
    for (const CRect& place : all.Places()) {
        const int index = static_cast<int>(parts.size());
        parts.push_back({std::string(slotName(OpenableItems::SlotFor(index))), place,
                         m_keyboard.Begun() && index == hotItem(), index == m_bar.Selected()});
    }
    return parts;
}

}  // namespace kalyxo
