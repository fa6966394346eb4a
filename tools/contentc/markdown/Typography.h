#pragma once

#include <string>
#include <string_view>

namespace contentc {

/// The characters that stand for marks in Markdown: mark i is the character `firstMark` + i.
inline constexpr char32_t firstMark = 0xF0000;

/// Sets running text, in UTF-8: keeps a number and its unit together and the groups of three digits of a
/// number; `-5` becomes −5, `--` becomes –. A mark behind a number is taken for its unit.
std::string typeset(std::string_view text);

/// Whether the blank at this place of a text stands within a number or between it and its unit.
bool joinsNumber(std::string_view text, std::size_t blank);

}  // namespace contentc
