#pragma once

#include "platform/base/Geometry.h"

namespace kalyxo {

/// Height of the section bar in pixels.
inline constexpr int kBarHeight = 50;
/// Thickness of the splitter in pixels.
inline constexpr int kSplitterWidth = 7;
/// Lowest splitter position that is kept.
inline constexpr int kSmallestSplitterPos = 120;

/// Where the panes below the bar lie, in view pixels.
struct PaneLayout {
    platform::CSize client;

    constexpr platform::CRect whole() const {
        return platform::CRect::at(0, kBarHeight, client.cx, client.cy - kBarHeight);
    }
    constexpr platform::CRect browseSelection(int splitterPos) const {
        return platform::CRect::at(0, kBarHeight, splitterPos, client.cy - kBarHeight);
    }
    constexpr platform::CRect browser(int splitterPos) const {
        const int left = splitterPos + kSplitterWidth;
        return platform::CRect::at(left, kBarHeight, client.cx - left, client.cy - kBarHeight);
    }
};

}  // namespace kalyxo
