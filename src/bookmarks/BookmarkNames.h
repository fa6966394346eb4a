#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace kalyxo {

/// Codes for the first part of a proposed name; the codes 1 to 7 are those of the sections.
inline constexpr std::int32_t kPeriodicTableName = 100;
inline constexpr std::int32_t kDataAnalyserName = 101;

/// The proposed name of a bookmark: the text for `nameCode` (empty for an unknown code), " - " and the title.
std::string ProposedBookmarkName(std::int32_t nameCode, std::string_view title);

}  // namespace kalyxo
