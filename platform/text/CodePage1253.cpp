#include "platform/text/CodePage1253.h"

#include <algorithm>

#include "platform/text/CodePageTable.h"
#include "platform/text/Utf8.h"

namespace platform {

std::string toUtf8(std::string_view cp1253) {
    std::string result;
    result.reserve(cp1253.size() + cp1253.size() / 2);
    for (const char byte : cp1253) appendUtf8(result, codepage::toUnicode(byte));
    return result;
}

std::string fromUtf8(std::string_view utf8) {
    std::string result;
    result.reserve(utf8.size());
    for (std::size_t at = 0; at < utf8.size();) {
        const auto character = codepage::decodeUtf8(utf8, at);
        const int byte = codepage::fromUnicode(character.value);
        result += byte < 0 ? '?' : static_cast<char>(byte);
        at += character.length;
    }
    return result;
}

std::optional<std::string> fromUtf8Strict(std::string_view utf8, std::size_t* badOffset) {
    std::string result;
    result.reserve(utf8.size());
    for (std::size_t at = 0; at < utf8.size();) {
        const auto character = codepage::decodeUtf8(utf8, at);
        const int byte = codepage::fromUnicode(character.value);
        if (byte < 0) {
            if (badOffset) *badOffset = at;
            return std::nullopt;
        }
        result += static_cast<char>(byte);
        at += character.length;
    }
    return result;
}

char lower(char c) { return codepage::lowerByte(c); }

std::string toLower(std::string_view cp1253) {
    std::string result(cp1253);
    std::ranges::transform(result, result.begin(), codepage::lowerByte);
    return result;
}

bool equalsNoCase(std::string_view a, std::string_view b) {
    return std::ranges::equal(
        a, b, [](char x, char y) { return codepage::lowerByte(x) == codepage::lowerByte(y); });
}

}  // namespace platform
