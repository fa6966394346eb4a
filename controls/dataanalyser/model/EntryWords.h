#pragma once

#include <cstdint>

namespace controls::dataanalyser {

/// Words that name entries of the state; below `categoryWord` a word is the place of a column. Kept in
/// bookmarks.
inline constexpr std::int32_t categoryWord = 1000;
inline constexpr std::int32_t graphXWord = 1001;
inline constexpr std::int32_t graphYWord = 1002;
inline constexpr std::int32_t graphOptionsWord = 1003;
inline constexpr std::int32_t windowLeftWord = 1004;
inline constexpr std::int32_t windowRightWord = 1005;
inline constexpr std::int32_t windowBottomWord = 1006;
inline constexpr std::int32_t windowTopWord = 1007;

}  // namespace controls::dataanalyser
