#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace platform {

/// The text as UTF-8. Never fails: bytes that the code page leaves undefined have Unicode values too (see
/// CodePageTable.h), so every text can be converted to Unicode and back.
std::string toUtf8(std::string_view cp1253);

/// The UTF-8 text in code page 1253. Characters outside the code page and malformed sequences become '?'.
std::string fromUtf8(std::string_view utf8);

/// The UTF-8 text in code page 1253. Nothing when a character is outside the code page or a sequence is
/// malformed; `badOffset`, if given, then receives the byte offset of the first of these.
std::optional<std::string> fromUtf8Strict(std::string_view utf8, std::size_t* badOffset = nullptr);

/// The lower-case form of a letter, Latin or Greek, with tonos and dialytika kept. Any other byte stays.
char lower(char c);

/// The text with `lower` applied to each byte.
std::string toLower(std::string_view cp1253);

/// Whether two code page 1253 texts are equal apart from upper and lower case.
bool equalsNoCase(std::string_view a, std::string_view b);

}  // namespace platform
