#include "tools/contentc/source/Substitutes.h"

#include <algorithm>
#include <array>
#include <string_view>

namespace contentc {
namespace {

struct CharacterSubstitute {
    char32_t character;
    std::string_view text;
};

constexpr std::array characterSubstitutes{
    CharacterSubstitute{U'×', "x"},      CharacterSubstitute{U'÷', ":"},
    CharacterSubstitute{U'−', "-"},      CharacterSubstitute{U'→', "->"},
    CharacterSubstitute{U'⟶', "->"},     CharacterSubstitute{U'←', "<-"},
    CharacterSubstitute{U'⇌', "<=>"},    CharacterSubstitute{U'⇄', "<=>"},
    CharacterSubstitute{U'≈', "~"},      CharacterSubstitute{U'≤', "<="},
    CharacterSubstitute{U'≥', ">="},     CharacterSubstitute{U'≠', "/="},
    CharacterSubstitute{U'⋅', "·"},      CharacterSubstitute{U'∙', "·"},
    CharacterSubstitute{U'º', "°"},      CharacterSubstitute{U'Ω', "Ω"},
    CharacterSubstitute{U'∆', "Δ"},      CharacterSubstitute{U'¼', "1/4"},
    CharacterSubstitute{U'¾', "3/4"},    CharacterSubstitute{U'¹', "1"},
    CharacterSubstitute{U'\u0301', "ά"}, CharacterSubstitute{U'\u202F', " "},
    CharacterSubstitute{U'\u2009', " "}, CharacterSubstitute{U'\u200A', " "},
    CharacterSubstitute{U'\u2010', "-"}, CharacterSubstitute{U'\u2011', "-"},
    CharacterSubstitute{U'\u200B', ""},  CharacterSubstitute{U'\u00AD', ""},
    CharacterSubstitute{U'\uFEFF', ""},
};

/// Latin letters with marks, by their plain letters.
struct LatinLetters {
    std::u32string_view letters;
    std::string_view plain;
};

constexpr std::array latinLetters{
    LatinLetters{U"àáâãäåā", "a"}, LatinLetters{U"ÀÁÂÃÄÅ", "A"},  LatinLetters{U"çćč", "c"},
    LatinLetters{U"èéêëēě", "e"},  LatinLetters{U"ÈÉÊË", "E"},    LatinLetters{U"ìíîïı", "i"},
    LatinLetters{U"ñńň", "n"},     LatinLetters{U"òóôõöøő", "o"}, LatinLetters{U"ÒÓÔÕÖØ", "O"},
    LatinLetters{U"šś", "s"},      LatinLetters{U"ŠŚ", "S"},      LatinLetters{U"ùúûüůű", "u"},
    LatinLetters{U"ÙÚÛÜ", "U"},    LatinLetters{U"ýÿ", "y"},      LatinLetters{U"žźż", "z"},
    LatinLetters{U"ß", "ss"},      LatinLetters{U"æ", "ae"},      LatinLetters{U"œ", "oe"},
    LatinLetters{U"ł", "l"},
};

}  // namespace

std::optional<std::string> substituteFor(char32_t character) {
    // Lowered and raised digits.
    if (character >= U'₀' && character <= U'₉')
        return std::string(1, static_cast<char>('0' + (character - U'₀')));
    if (character >= U'⁴' && character <= U'⁹')
        return std::string(1, static_cast<char>('4' + (character - U'⁴')));
    const auto* const found =
        std::ranges::find(characterSubstitutes, character, &CharacterSubstitute::character);
    if (found != characterSubstitutes.end()) return std::string(found->text);
    for (const LatinLetters& row : latinLetters) {
        if (row.letters.find(character) != std::u32string_view::npos) return std::string(row.plain);
    }
    // Pictures and signs.
    if (character >= 0x1F000) return std::string();
    return std::nullopt;
}

}  // namespace contentc
