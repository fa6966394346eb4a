#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace platform {

/// The text as UTF-8. Never fails: a byte that the code page leaves undefined
/// has a value of its own (see CodePageTable.h), so every text survives the way to Unicode and back.
std::string toUtf8(std::string_view cp1253);

/// The UTF-8 text in code page 1253; each character outside the code page and each malformed sequence becomes
/// '?'.
std::string fromUtf8(std::string_view utf8);

/// The UTF-8 text in code page 1253, or nothing when a character is outside the code page or a sequence is
/// malformed; then `badOffset`, when given, receives the byte offset of the first such character.
std::optional<std::string> fromUtf8Strict(std::string_view utf8, std::size_t* badOffset = nullptr);

/// The lower-case letter of a code page 1253 letter, Latin or Greek (with tonos and dialytika kept); any
/// other byte, undefined ones included, stays.
char lower(char c);

/// The text with `lower` applied to each byte.
std::string toLower(std::string_view cp1253);

/// Whether two code page 1253 texts are the same when letter case is left aside.
bool equalsNoCase(std::string_view a, std::string_view b);

}  // namespace platform
