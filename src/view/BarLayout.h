#pragma once

#include "platform/base/Geometry.h"
#include "src/view/SectionCommands.h"

namespace kalyxo {

/// Where a slot stands on the bar and in the strips, in pixels.
struct SlotPlace {
    int x = 0;
    int width = 0;
    int stripX = 0;
    int stripWidth = 0;  ///< differs from `width` only for the filler, which is stretched
};

/// Geometry of the section bar: slots 0 to 8 from the left, the main-menu and toolbar slots at the right, the
/// filler between.
class BarLayout {
  public:
    static constexpr int kSlots = 12;
    static constexpr int kHeight = 50;

    void SetWidth(int clientWidth) { m_nMainMenuX = clientWidth - 110; }

    SlotPlace Place(int slot, bool selected) const;
    /// The slot at a point of the view's client area, −1 off the bar and on the filler.
    int SlotAt(platform::CPoint p) const;
    /// The slot that the selected slot's shadow falls on.
    static constexpr int RightNeighbour(int slot) {
        return slot == kDataAnalyserSlot ? kFillerSlot : slot + 1;
    }

  private:
    int m_nMainMenuX = 526;
};

}  // namespace kalyxo
