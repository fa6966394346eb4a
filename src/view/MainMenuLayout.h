#pragma once

#include <array>
#include <string_view>

#include "platform/base/Geometry.h"

namespace kalyxo {

/// A hot area of the main-menu screen. Coordinates are relative to the picture's top-left corner; the bounds
/// of the area are inclusive.
struct MainMenuArea {
    int left, right, top, bottom;
    std::string_view picture;                   ///< name of the preview's file
    std::array<platform::CRect, 2> connectors;  ///< lines from the area to the panel

    constexpr bool Contains(platform::CPoint p) const {
        return p.x >= left && p.x <= right && p.y >= top && p.y <= bottom;
    }
};

/// Geometry of the main-menu screen.
struct MainMenuLayout {
    static constexpr int kAreas = 9;
    static constexpr std::string_view kPicture = "mainmenu";
    /// Corner of the preview inside the panel's frame.
    static constexpr platform::CPoint kPreview{131, 101};

    /// The areas by item number: 0 to 6 are the sections in bar order, 7 the periodic table, 8 the data
    /// analyser.
    static const std::array<MainMenuArea, kAreas>& Areas();
    /// The sides of the frame round the panel.
    static const std::array<platform::CRect, 4>& Frame();

    /// Where the picture lies in the client area: centred below the bar, never over it.
    static platform::CPoint Origin(platform::CSize client, platform::CSize picture);
    /// The item whose area holds the point, −1 when none does.
    static int ItemAt(platform::CPoint relative);
};

}  // namespace kalyxo
