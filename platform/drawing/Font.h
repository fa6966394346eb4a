#pragma once

#include <string_view>

namespace platform {

/// A font by its platform name; the nearest one that is installed and has Greek letters is used.
struct LOGFONT {
    std::string_view faceName;
    int height = 0;  ///< negative: of the letters in pixels
    int weight = 400;
};

}  // namespace platform
