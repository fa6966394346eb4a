#include "tools/contentc/source/SourceText.h"

#include <algorithm>
#include <charconv>
#include <cstdio>

#include "platform/text/CodePage1253.h"
#include "platform/text/CodePageTable.h"
#include "tools/contentc/source/Substitutes.h"
#include "tools/contentc/source/TextMessages.h"

namespace contentc {
namespace {

using platform::codepage::Utf8Character;

std::string codePoint(char32_t value) {
    char code[16];
    std::snprintf(code, sizeof code, "U+%04X", static_cast<unsigned>(value));
    return code;
}

bool isControl(char32_t value) { return (value < 0x20 && value != '\t') || (value >= 0x7F && value < 0xA0); }

bool isPrivate(char32_t value) { return value >= 0xE000 && value < 0xF900; }

/// Whether the code page has a character. Control and private characters have bytes in it, but no meaning on
/// a page.
bool isInCodePage(char32_t value) {
    return value != Utf8Character::malformed && !isControl(value) && !isPrivate(value) &&
           platform::codepage::fromUnicode(value) >= 0;
}

/// Reports a character that has no place on a page, and says what to write instead.
void reportCharacter(const Utf8Character& character, std::string_view bytes, const SourcePlace& place,
                     Diagnostics& diagnostics) {
    const char32_t value = character.value;
    if (value == Utf8Character::malformed) {
        diagnostics.error(place, say::notUtf8).suggest(say::saveAsUtf8);
        return;
    }
    if (isControl(value)) {
        diagnostics.error(place, say::controlCharacter, {codePoint(value)}).suggest(say::leaveOut);
        return;
    }
    Diagnostic& fault = diagnostics.error(place, say::notInCodePage, {bytes, codePoint(value)});
    const auto substitute = substituteFor(value);
    if (!substitute) return;
    if (substitute->empty()) {
        fault.suggest(say::leaveOut);
    } else {
        fault.suggest(say::writeInstead, {*substitute});
    }
}

SourcePlace placeIn(const SourcePlace& line, std::string_view utf8, std::size_t offset) {
    return {line.file, line.line, columnAt(utf8, offset)};
}

/// Where a part of a text begins. Nothing of it, as after the last word, is at its end.
std::size_t offsetOf(std::string_view part, std::string_view text) {
    return part.data() ? static_cast<std::size_t>(part.data() - text.data()) : text.size();
}

constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";

/// Calls `take(line, place)` for each line of the file.
template <typename Take>
void forEachLine(const SourceFile& file, Take take) {
    std::string_view rest = file.bytes;
    if (rest.starts_with(byteOrderMark)) rest.remove_prefix(byteOrderMark.size());
    for (int number = 1; !rest.empty(); ++number) {
        std::string_view line = rest.substr(0, rest.find('\n'));
        rest.remove_prefix(std::min(rest.size(), line.size() + 1));
        if (line.ends_with('\r')) line.remove_suffix(1);
        take(line, file.place(number));
    }
}

/// Whether a character has no business in a text that is to be written with entities.
bool isForbidden(char32_t value) {
    return value == Utf8Character::malformed || isControl(value) || isPrivate(value) || value >= 0xF0000;
}

std::string withoutForbidden(std::string_view utf8, const SourcePlace& place, Diagnostics& diagnostics) {
    std::string kept;
    bool reported = false;
    for (std::size_t at = 0; at < utf8.size();) {
        const Utf8Character character = platform::codepage::decodeUtf8(utf8, at);
        const std::string_view bytes = utf8.substr(at, character.length);
        const bool bad = isForbidden(character.value);
        if (bad && !reported) reportCharacter(character, bytes, placeIn(place, utf8, at), diagnostics);
        reported |= bad;
        kept.append(bad ? "?" : bytes);
        at += character.length;
    }
    return kept;
}

std::string encodeLine(std::string_view utf8, const SourcePlace& place, Diagnostics& diagnostics) {
    std::string encoded;
    bool reported = false;
    for (std::size_t at = 0; at < utf8.size();) {
        const Utf8Character character = platform::codepage::decodeUtf8(utf8, at);
        const bool isRight = isInCodePage(character.value);
        if (!isRight && !reported) {
            reportCharacter(character, utf8.substr(at, character.length), placeIn(place, utf8, at),
                            diagnostics);
        }
        reported |= !isRight;
        encoded.push_back(isRight ? static_cast<char>(platform::codepage::fromUnicode(character.value))
                                  : '?');
        at += character.length;
    }
    return encoded;
}

}  // namespace

std::vector<TextLine> readLines(const SourceFile& file, Diagnostics& diagnostics) {
    std::vector<TextLine> lines;
    forEachLine(file, [&](std::string_view line, const SourcePlace& place) {
        lines.push_back({encodeLine(line, place, diagnostics), place});
    });
    return lines;
}

std::vector<TextLine> readUtf8Lines(const SourceFile& file, Diagnostics& diagnostics) {
    std::vector<TextLine> lines;
    forEachLine(file, [&](std::string_view line, const SourcePlace& place) {
        lines.push_back({withoutForbidden(line, place, diagnostics), place});
    });
    return lines;
}

TextLine inCodePage(const TextLine& utf8, Diagnostics& diagnostics) {
    return {encodeLine(utf8.text, utf8.place, diagnostics), utf8.place};
}

SourcePlace placeOf(std::string_view part, const TextLine& line) {
    SourcePlace place = placeIn(line.place, line.text, offsetOf(part, line.text));
    place.column += std::max(line.place.column, 1) - 1;
    return place;
}

SourcePlace placeOfBytes(std::string_view part, const TextLine& line) {
    const auto offset = static_cast<int>(offsetOf(part, line.text));
    return {line.place.file, line.place.line, std::max(line.place.column, 1) + offset};
}

std::optional<std::int32_t> parseNumber(std::string_view text) {
    std::int32_t number = 0;
    const auto [end, fault] = std::from_chars(text.data(), text.data() + text.size(), number);
    if (fault != std::errc{} || end != text.data() + text.size()) return std::nullopt;
    return number;
}

}  // namespace contentc
