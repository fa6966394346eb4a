#pragma once

#include "platform/drawing/DC.h"
#include "src/view/BarLayout.h"

namespace kalyxo {

/// The drawn bar at the top of the view: which slot is selected and hovered, and its picture.
class SectionBar {
  public:
    /// Loads strips and shadow.
    SectionBar();

    const BarLayout& Layout() const { return m_layout; }
    void SetWidth(int clientWidth) { m_layout.SetWidth(clientWidth); }

    int Selected() const { return m_nSelected; }
    int Hovered() const { return m_nHovered; }

    void DrawBar(platform::CDC& dc) const;
    /// Selects a slot, ends the hovering of any other, and redraws what changes.
    void Select(int slot, platform::CDC& dc);
    /// Hovers a slot, −1 for none, and redraws what changes.
    void Hover(int slot, platform::CDC& dc);

  private:
    const platform::CBitmap& strip(int slot) const;
    void DrawBarSlot(platform::CDC& dc, int slot) const;

    BarLayout m_layout;
    platform::CBitmap m_normal;
    platform::CBitmap m_hover;
    platform::CBitmap m_selected;
    platform::CBitmap m_shadow;
    int m_nSelected = kMainMenuSlot;
    int m_nHovered = -1;
};

}  // namespace kalyxo
