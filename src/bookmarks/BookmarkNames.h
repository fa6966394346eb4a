#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace kalyxo {

/// What a bookmark is proposed to be named after: a section by its code (1 to 7), or one of these.
inline constexpr std::int32_t kPeriodicTableName = 100;
inline constexpr std::int32_t kDataAnalyserName = 101;

/// The name proposed for a bookmark: what it is named after (empty for an unknown code), " - " and the title.
std::string ProposedBookmarkName(std::int32_t nameCode, std::string_view title);

}  // namespace kalyxo
