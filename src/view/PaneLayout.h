#pragma once

#include "src/display/SplitterBar.h"
#include "src/view/BarLayout.h"

namespace kalyxo {

/// Where the panes below the bar lie, in view pixels.
struct PaneLayout {
    platform::CSize client;

    constexpr platform::CRect whole() const { return {0, BarLayout::kHeight, client.cx, client.cy}; }
    constexpr platform::CRect browseSelection(int splitterPos) const {
        return {0, BarLayout::kHeight, splitterPos, client.cy};
    }
    constexpr platform::CRect browser(int splitterPos) const {
        return {splitterPos + CSplitterBar::kThickness, BarLayout::kHeight, client.cx, client.cy};
    }
};

}  // namespace kalyxo
