#include "tools/contentc/markdown/HtmlInCodePage.h"

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
