#pragma once

#include <cstdint>

namespace kalyxo {

/// A place at which a search found a word.
struct SearchHit {
    std::int32_t pageId = 0;       ///< 0 or less when there is no page to open
    std::int32_t itemCode = 0;     ///< 0 = the page itself
    std::int16_t sectionCode = 0;  ///< 1 to 7; any other is not shown

    friend bool operator==(const SearchHit&, const SearchHit&) = default;
};

}  // namespace kalyxo
