#pragma once

#include <array>
#include <cstddef>
#include <string_view>

#include "platform/text/CodePageTable.h"

namespace platform {

namespace codepage {

/// The UTF-8 bytes of a literal, as a template argument.
template <std::size_t N>
struct LiteralBytes {
    // NOLINTNEXTLINE(google-explicit-constructor): a literal becomes a template argument by conversion
    consteval LiteralBytes(const char (&text)[N]) {
        for (std::size_t i = 0; i < N; ++i) bytes[i] = text[i];
    }
    constexpr std::string_view view() const { return {bytes, N - 1}; }

    char bytes[N]{};
};

/// Never defined. When a literal has a character outside code page 1253, the compiler's message names this
/// function.
void literalHasCharacterOutsideCodePage1253();

template <LiteralBytes Literal>
consteval std::size_t convertedLength() {
    std::size_t length = 0;
    for (std::size_t at = 0; at < Literal.view().size(); ++length)
        at += decodeUtf8(Literal.view(), at).length;
    return length;
}

/// The converted bytes with a NUL after them.
template <LiteralBytes Literal>
consteval auto convertLiteral() {
    std::array<char, convertedLength<Literal>() + 1> result{};
    std::size_t at = 0;
    for (std::size_t i = 0; i + 1 < result.size(); ++i) {
        const Utf8Character character = decodeUtf8(Literal.view(), at);
        const int byte = fromUnicode(character.value);
        if (byte < 0) literalHasCharacterOutsideCodePage1253();
        result[i] = static_cast<char>(byte);
        at += character.length;
    }
    return result;
}

template <LiteralBytes Literal>
inline constexpr auto convertedLiteral = convertLiteral<Literal>();

}  // namespace codepage

inline namespace literals {

/// A literal written in Greek in a UTF-8 source, converted to code page 1253 at compile time: "Δομές"_gr. The
/// view is valid for the whole run, and a NUL follows its last byte. A character outside the code page is a
/// compile error.
template <codepage::LiteralBytes Literal>
constexpr std::string_view operator""_gr() {
    constexpr auto& bytes = codepage::convertedLiteral<Literal>;
    return {bytes.data(), bytes.size() - 1};
}

}  // namespace literals

}  // namespace platform
