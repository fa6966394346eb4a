#pragma once

#include <optional>
#include <string>

namespace contentc {

/// What to write for a character that code page 1253 lacks: a UTF-8 text, which is empty when the character
/// is to be left out. Nothing when nobody knows.
std::optional<std::string> substituteFor(char32_t character);

}  // namespace contentc
