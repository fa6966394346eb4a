#pragma once

#include "src/display/SplitterBar.h"
#include "src/view/BarLayout.h"

namespace kalyxo {

/// Where the panes below the bar lie, in view pixels.
struct PaneLayout {
    platform::CSize client;

    constexpr platform::CRect Whole() const { return {0, BarLayout::kHeight, client.cx, client.cy}; }
    constexpr platform::CRect BrowseSelection(int splitterPos) const {
        return {0, BarLayout::kHeight, splitterPos, client.cy};
    }
    constexpr platform::CRect Browser(int splitterPos) const {
        return {splitterPos + CSplitterBar::kThickness, BarLayout::kHeight, client.cx, client.cy};
    }
};

}  // namespace kalyxo
