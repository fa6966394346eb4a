#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace drive {

/// The words of a script line, split at blanks. `"…"` is one word with blanks, in which `\"` and `\\` stand
/// for a quote and a backslash. A `#` at the start of an unquoted word starts a comment. No words for a blank
/// line; nothing when a quote is not closed or not followed by a blank.
std::optional<std::vector<std::string>> splitWords(std::string_view line);

}  // namespace drive
