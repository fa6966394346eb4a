#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace drive {

/// The words of a script line, split at blanks. `"…"` is one word that may hold blanks; in it, `\"` and `\\`
/// stand for a quote and a backslash. A `#` at the start of an unquoted word starts a comment. A blank line
/// has no words. Nothing when a quote is not closed, or when no blank follows a closing quote.
std::optional<std::vector<std::string>> splitWords(std::string_view line);

}  // namespace drive
