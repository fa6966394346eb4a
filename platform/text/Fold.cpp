#include "platform/text/Fold.h"

#include <algorithm>
#include <array>
#include <cstddef>

#include "platform/text/CodePageTable.h"

namespace platform {

namespace {

constexpr char32_t withoutMarks(char32_t lowerCase) {
    switch (lowerCase) {
        case U'ά':
            return U'α';
        case U'έ':
            return U'ε';
        case U'ή':
            return U'η';
        case U'ί':
        case U'ϊ':
        case U'ΐ':
            return U'ι';
        case U'ό':
            return U'ο';
        case U'ύ':
        case U'ϋ':
        case U'ΰ':
            return U'υ';
        case U'ώ':
            return U'ω';
        case U'ς':
            return U'σ';
        default:
            return lowerCase;
    }
}

constexpr auto foldTable = [] {
    std::array<char, 256> table{};
    for (std::size_t i = 0; i < table.size(); ++i) {
        const char lowerCase = codepage::lowerByte(static_cast<char>(i));
        table[i] = static_cast<char>(codepage::fromUnicode(withoutMarks(codepage::toUnicode(lowerCase))));
    }
    return table;
}();

}  // namespace

std::string fold(std::string_view cp1253) {
    std::string result(cp1253);
    std::ranges::transform(result, result.begin(),
                           [](char c) { return foldTable[static_cast<unsigned char>(c)]; });
    return result;
}

}  // namespace platform
