#pragma once

#include <string>

#include "platform/base/Geometry.h"

namespace kalyxo {

/// What the view remembers of the last search in which a place was chosen.
struct SearchState {
    int alternatives = 0;  ///< 1 when other forms of the word were searched too
    /// The widths of the result list's columns, in pixels.
    int nameWidth = 130;
    int topicWidth = 120;
    int subgroupWidth = 130;
    /// The outer size of the dialog in pixels, 0 × 0 for its smallest.
    platform::CSize size;
    int row = -1;      ///< the chosen row, −1 for none
    std::string word;  ///< code page 1253
};

}  // namespace kalyxo
