#pragma once

#include <cstdint>

namespace kalyxo {

/// A place where a search has found a word.
struct SearchHit {
    std::int32_t pageId = 0;       ///< 0 or less when there is no page to open
    std::int32_t itemCode = 0;     ///< 0 for the page itself
    std::int16_t sectionCode = 0;  ///< 1 to 7; hits with another code are not shown

    friend bool operator==(const SearchHit&, const SearchHit&) = default;
};

}  // namespace kalyxo
