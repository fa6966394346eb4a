#pragma once

#include <string>

namespace kalyxo {

/// What the view remembers of the last search that led to a place.
struct SearchState {
    int alternatives = 0;  ///< 1 when the word's other forms were searched too
    /// Widths of the result list's columns, in pixels.
    int nameWidth = 130;
    int topicWidth = 120;
    int subgroupWidth = 130;
    int row = -1;      ///< the chosen row, −1 = none
    std::string word;  ///< code page 1253
};

}  // namespace kalyxo
