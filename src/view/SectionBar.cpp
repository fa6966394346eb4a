#include "src/view/SectionBar.h"

#include <utility>

#include "src/resources/ResourceIds.h"

namespace kalyxo {

using platform::CBitmap;
using platform::CDC;

namespace {

void drawShadow(CDC& dc, const CBitmap& shadow, int x) {
    CDC source = CDC::CreateCompatibleDC(dc);
    source.SelectObject(shadow);
    dc.BitBlt(x, 1, shadow.Width(), shadow.Height(), source, 0, 0);
}

}  // namespace

SectionBar::SectionBar() {
    m_normal.LoadBitmap(IDB_BAR_NORMAL);
    m_hover.LoadBitmap(IDB_BAR_HOVER);
    m_selected.LoadBitmap(IDB_BAR_SELECTED);
    m_shadow.LoadBitmap(IDB_BAR_SHADOW);
}

void SectionBar::DrawBar(CDC& dc) const {
    for (int slot = 0; slot < BarLayout::kSlots; ++slot) DrawBarSlot(dc, slot);
}

void SectionBar::Select(int slot, CDC& dc) {
    if (m_nHovered >= 0 && m_nHovered != slot) Hover(-1, dc);
    if (m_nSelected == slot) return;
    const int former = std::exchange(m_nSelected, slot);
    DrawBarSlot(dc, former);
    DrawBarSlot(dc, BarLayout::RightNeighbour(former));
    DrawBarSlot(dc, slot);
}

void SectionBar::Hover(int slot, CDC& dc) {
    if (slot == m_nHovered) return;
    const int former = std::exchange(m_nHovered, slot);
    if (former >= 0) DrawBarSlot(dc, former);
    if (slot >= 0) DrawBarSlot(dc, slot);
}

const CBitmap& SectionBar::strip(int slot) const {
    if (slot == m_nSelected) return m_selected;
    return slot == m_nHovered ? m_hover : m_normal;
}

void SectionBar::DrawBarSlot(CDC& dc, int slot) const {
    const bool selected = slot == m_nSelected;
    const SlotPlace place = m_layout.Place(slot, selected);
    CDC source = CDC::CreateCompatibleDC(dc);
    source.SelectObject(strip(slot));
    if (place.width == place.stripWidth) {
        dc.BitBlt(place.x, 0, place.width, BarLayout::kHeight, source, place.stripX, 0);
    } else {
        dc.StretchBlt(place.x, 0, place.width, BarLayout::kHeight, source, place.stripX, 0, place.stripWidth,
                      BarLayout::kHeight);
    }
    if (selected) drawShadow(dc, m_shadow, place.x + place.width);
    if (slot == BarLayout::RightNeighbour(m_nSelected)) drawShadow(dc, m_shadow, place.x);
}

}  // namespace kalyxo
