#include "tools/contentc/markdown/Utf8.h"

#include "platform/text/CodePageTable.h"

namespace contentc {
namespace {

constexpr char32_t unbreakableBlank = 0xA0;

void appendInCodePage(std::string& text, char32_t character) {
    const int byte = platform::codepage::fromUnicode(character);
    const bool isControl = byte < 0x20 && character != U'\t';
    if (character == unbreakableBlank) {
        text.append("&nbsp;");
    } else if (isControl || character == U'~') {
        text.append("&#").append(std::to_string(static_cast<unsigned long>(character))).append(";");
    } else {
        text.push_back(static_cast<char>(byte));
    }
}

}  // namespace

void appendUtf8(std::string& text, char32_t character) {
    const auto byte = [&text](char32_t value) { text.push_back(static_cast<char>(value)); };
    const auto next = [&byte, character](unsigned shift) { byte(0x80U | ((character >> shift) & 0x3FU)); };
    if (character < 0x80) return byte(character);
    if (character < 0x800) {
        byte(0xC0U | (character >> 6U));
    } else if (character < 0x10000) {
        byte(0xE0U | (character >> 12U));
        next(6);
    } else {
        byte(0xF0U | (character >> 18U));
        next(12);
        next(6);
    }
    next(0);
}

TextLine htmlInCodePage(const TextLine& utf8) {
    TextLine line{{}, utf8.place};
    for (std::size_t at = 0; at < utf8.text.size();) {
        const auto character = platform::codepage::decodeUtf8(utf8.text, at);
        appendInCodePage(line.text, character.value);
        at += character.length;
    }
    return line;
}

}  // namespace contentc
