#pragma once

#include <string>

namespace platform {

/// Adds a character, by its Unicode value up to U+10FFFF, to a UTF-8 text. A surrogate is written in the same
/// way, which no reader of UTF-8 takes.
void appendUtf8(std::string& text, char32_t character);

}  // namespace platform
