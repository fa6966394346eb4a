#include "src/view/MainMenuLayout.h"

#include <algorithm>

#include "src/view/BarLayout.h"

namespace kalyxo {

using platform::CPoint;
using platform::CRect;
using platform::CSize;

namespace {

/// The connectors' numbers come from a screen on which the picture's corner lay here.
constexpr CPoint kMeasuredCorner{5, 92};

constexpr CRect measured(int left, int top, int right, int bottom) {
    return CRect{left, top, right, bottom}.offset({-kMeasuredCorner.x, -kMeasuredCorner.y});
}

constexpr std::array<MainMenuArea, MainMenuLayout::kAreas> kAreaTable = {{
    {40, 98, 239, 291, "cm", {measured(104, 331, 107, 384), measured(107, 352, 134, 356)}},
    {40, 98, 161, 213, "struct", {measured(104, 253, 107, 306), measured(107, 274, 134, 279)}},
    {39, 98, 84, 136, "ec", {measured(104, 176, 107, 229), measured(107, 210, 134, 214)}},
    {166, 225, 20, 72, "ca", {measured(171, 165, 231, 168), measured(198, 168, 202, 191)}},
    {285, 344, 20, 72, "source", {measured(290, 165, 350, 168), measured(319, 168, 323, 191)}},
    {395, 454, 20, 72, "history", {measured(400, 165, 460, 168), measured(428, 168, 432, 191)}},
    {530, 588, 85, 136, "concepts", {measured(532, 177, 535, 229), measured(507, 210, 532, 214)}},
    {529, 587, 162, 213, "pte", {measured(531, 254, 534, 306), measured(507, 274, 531, 278)}},
    {529, 588, 240, 291, "da", {measured(531, 333, 534, 384), measured(507, 353, 531, 357)}},
}};

constexpr std::array<CRect, 4> kFrame = {
    {{129, 99, 502, 101}, {500, 101, 502, 292}, {129, 101, 131, 292}, {129, 292, 502, 294}}};

}  // namespace

const std::array<MainMenuArea, MainMenuLayout::kAreas>& MainMenuLayout::Areas() { return kAreaTable; }

const std::array<CRect, 4>& MainMenuLayout::Frame() { return kFrame; }

CPoint MainMenuLayout::Origin(CSize client, CSize picture) {
    const int y = (client.cy - picture.cy - BarLayout::kHeight) / 2 + BarLayout::kHeight;
    return {(client.cx - picture.cx) / 2, std::max(y, BarLayout::kHeight)};
}

int MainMenuLayout::ItemAt(CPoint relative) {
    const auto at =
        std::ranges::find_if(kAreaTable, [&](const MainMenuArea& area) { return area.Contains(relative); });
    return at == kAreaTable.end() ? -1 : static_cast<int>(at - kAreaTable.begin());
}

}  // namespace kalyxo
