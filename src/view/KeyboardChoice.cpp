#include "src/view/KeyboardChoice.h"

#include <cstdlib>
#include <limits>

namespace kalyxo {

using platform::CPoint;
using platform::CRect;
using platform::UINT;

namespace {

/// A pixel to the side counts as many times as a pixel ahead.
constexpr int kAsideWeight = 3;
/// An item of the same kind is passed over when it lies more than this many times farther to the side than
/// ahead: areas in one row differ by a pixel in height, and none of them lies above another.
constexpr int kMaxAside = 4;

bool isUpOrDown(UINT key) { return key == platform::VK_UP || key == platform::VK_DOWN; }

CPoint centre(const CRect& rect) { return {(rect.left + rect.right) / 2, (rect.top + rect.bottom) / 2}; }

/// The distance to an item in the direction of an arrow key; nothing when it lies in another direction.
std::optional<int> distance(CPoint from, CPoint to, UINT key, bool sameKind) {
    const CPoint way = to - from;
    const int along = isUpOrDown(key) ? way.y : way.x;
    const int aside = isUpOrDown(key) ? way.x : way.y;
    const int ahead = key == platform::VK_UP || key == platform::VK_LEFT ? -along : along;
    if (ahead <= 0 || (sameKind && std::abs(aside) > kMaxAside * ahead)) return std::nullopt;
    return ahead + kAsideWeight * std::abs(aside);
}

/// The nearest slot, or the nearest hot area, in that direction; −1 when there is none.
int nearest(const OpenableItems& items, int from, UINT key, bool slots) {
    const auto& places = items.Places();
    int found = -1;
    int minWay = std::numeric_limits<int>::max();
    for (int i = 0; i < static_cast<int>(places.size()); ++i) {
        if (OpenableItems::IsSlot(i) != slots || i == items.SelectedSlot()) continue;
        const auto way =
            distance(centre(places[static_cast<std::size_t>(from)]),
                     centre(places[static_cast<std::size_t>(i)]), key, OpenableItems::IsSlot(from) == slots);
        if (!way || *way >= minWay) continue;
        found = i;
        minWay = *way;
    }
    return found;
}

/// The first hot area that the arrow keys choose: the left one in the upper row.
constexpr int kFirstArea = OpenableItems::IndexOfArea(3);

}  // namespace

OpenableItems::OpenableItems(const BarLayout& bar, int selectedSlot, std::optional<CPoint> menu)
    : m_nSelectedSlot(selectedSlot) {
    for (int slot = 0; slot < kSlots; ++slot) {
        const SlotPlace place = bar.Place(slot, false);
        m_places.push_back(CRect::at(place.x, 0, place.width, BarLayout::kHeight));
    }
    if (!menu) return;
    for (const MainMenuArea& area : MainMenuLayout::Areas()) {
        m_places.push_back(CRect{area.left, area.top, area.right + 1, area.bottom + 1}.offset(*menu));
    }
}

int KeyboardChoice::NextStop(const OpenableItems& items, int from) {
    const bool hasAreas = items.Places().size() > OpenableItems::kSlots;
    if (!hasAreas) return -1;
    return from < 0 || OpenableItems::IsSlot(from) ? kFirstArea : 0;
}

int KeyboardChoice::Next(const OpenableItems& items, int from, UINT key) {
    const bool hasAreas = items.Places().size() > OpenableItems::kSlots;
    if (from < 0 && hasAreas) return kFirstArea;
    const int start = from < 0 ? items.SelectedSlot() : from;
    const bool onBar = OpenableItems::IsSlot(start);
    const int sameKind = nearest(items, start, key, onBar);
    return sameKind >= 0 || !isUpOrDown(key) ? sameKind : nearest(items, start, key, !onBar);
}

}  // namespace kalyxo
