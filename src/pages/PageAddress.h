#pragma once

#include <cstdint>

namespace kalyxo {

/// Section codes of history entries that are no pages.
inline constexpr std::int16_t kPeriodicTableCode = -1;
inline constexpr std::int16_t kDataAnalyserCode = -2;

/// A place in the content: a section, the topic that owns the page on show, and the sub-page chosen in it.
struct PageAddress {
    std::int16_t sectionCode = 0;  ///< 1 to 7; in the history also the two codes above
    std::int32_t pageId = 0;       ///< a page number, 0 when none
    std::int32_t itemCode = 0;     ///< 0 = the topic's own page, otherwise the sub-page's number

    friend bool operator==(const PageAddress&, const PageAddress&) = default;
};

}  // namespace kalyxo
