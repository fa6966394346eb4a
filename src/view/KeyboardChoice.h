#pragma once

#include <optional>
#include <vector>

#include "platform/base/Messages.h"
#include "src/view/BarLayout.h"
#include "src/view/MainMenuLayout.h"

namespace kalyxo {

/// What the view draws and the user can open, by index: the slots of the section bar, then, while the main
/// menu is on show, its hot areas.
class OpenableItems {
  public:
    /// `menu` is where the main-menu picture lies in the view; without it there are the slots only.
    OpenableItems(const BarLayout& bar, int selectedSlot, std::optional<platform::CPoint> menu);

    /// Their places in the view.
    const std::vector<platform::CRect>& Places() const { return m_places; }
    int SelectedSlot() const { return m_nSelectedSlot; }

    static constexpr int kSlots = kToolbarSlot + 1;
    static constexpr bool IsSlot(int index) { return index < kSlots; }
    /// The bar slot of an item; for a hot area, the slot that opens the same.
    static constexpr int SlotFor(int index) { return IsSlot(index) ? index : index - kSlots; }
    static constexpr int IndexOfArea(int area) { return kSlots + area; }

  private:
    std::vector<platform::CRect> m_places;
    int m_nSelectedSlot;
};

/// The item that the arrow keys have chosen. It looks like an item under the pointer, and stays chosen until
/// the pointer moves.
class KeyboardChoice {
  public:
    /// The item to which an arrow key leads from the item `from`, −1 when there is none in that direction. At
    /// first `from` is −1. The selected slot is passed over, since it would not show that it is chosen.
    static int Next(const OpenableItems& items, int from, platform::UINT key);

    /// The item to which the tabulator leads from the item `from`: in turn to the main menu's first area and
    /// to the bar's first slot. −1 without a main menu, whose view the tabulator leaves.
    static int NextStop(const OpenableItems& items, int from);

    /// From now on an item is chosen; `pointer` is where the pointer lies on the screen.
    void Begin(platform::CPoint pointer) { m_pointer = pointer; }
    void End() { m_pointer.reset(); }
    /// Whether an item is chosen and the pointer still lies there.
    bool Stands(platform::CPoint pointer) const { return m_pointer == pointer; }
    bool Begun() const { return m_pointer.has_value(); }

  private:
    std::optional<platform::CPoint> m_pointer;
};

}  // namespace kalyxo
