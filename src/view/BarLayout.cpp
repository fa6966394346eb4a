#include "src/view/BarLayout.h"

namespace kalyxo {

namespace {

constexpr int kSlotWidth = 52;
constexpr int kFacesEnd = 468;
constexpr int kToolbarWidth = 58;
constexpr int kFillerStripX = 472;
constexpr int kFillerStripWidth = 40;
constexpr int kMainMenuStripX = 520;
constexpr int kToolbarStripX = 572;
/// The lowest rows of the bar take no part in hovering.
constexpr int kSensitiveHeight = 46;

}  // namespace

SlotPlace BarLayout::Place(int slot, bool selected) const {
    switch (slot) {
        case kMainMenuSlot:
            return {m_nMainMenuX, kSlotWidth, kMainMenuStripX, kSlotWidth};
        case kToolbarSlot:
            return {m_nMainMenuX + kSlotWidth, kToolbarWidth, kToolbarStripX, kToolbarWidth};
        case kFillerSlot:
            return {kFacesEnd, m_nMainMenuX - kFacesEnd, kFillerStripX, kFillerStripWidth};
        default: {
            const int x = slot * kSlotWidth + (selected ? 1 : 0);
            const int width = selected ? kSlotWidth - 1 : kSlotWidth + 1;
            return {x, width, x, width};
        }
    }
}

int BarLayout::SlotAt(platform::CPoint p) const {
    if (p.y < 0 || p.y >= kSensitiveHeight || p.x <= 0 || p.x >= m_nMainMenuX + 110) return -1;
    if (p.x >= m_nMainMenuX + kSlotWidth) return kToolbarSlot;
    if (p.x >= m_nMainMenuX) return kMainMenuSlot;
    return p.x < kFacesEnd ? p.x / kSlotWidth : -1;
}

}  // namespace kalyxo
