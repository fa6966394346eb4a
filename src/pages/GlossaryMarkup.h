#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace kalyxo {

/// What the address of a glossary link begins with; the term's 8-character key and ".htm" follow.
inline constexpr std::string_view kGlossaryPrefix = "pjqbhg";

/// Rewrites the term whose "~G" stands at `start` of `line` into a link. False, with the line unchanged, when
/// the markup has no closing "~" or it stands within the key.
bool InsertGlossaryLink(std::string& line, std::size_t start);

}  // namespace kalyxo
