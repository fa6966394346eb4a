#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>

/// The table of code page 1253 and the decoding of UTF-8, usable at compile time.
namespace platform::codepage {

/// The Unicode values of the bytes 0x80 to 0xFF. Bytes that the code page leaves undefined have the values
/// that the platform gives them: the C1 control of the same number, and U+F8F9 to U+F8FB for 0xAA, 0xD2 and
/// 0xFF.
inline constexpr std::array<char16_t, 128> upperHalf = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,  // 80
    0x0088, 0x2030, 0x008A, 0x2039, 0x008C, 0x008D, 0x008E, 0x008F,  // 88
    0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,  // 90
    0x0098, 0x2122, 0x009A, 0x203A, 0x009C, 0x009D, 0x009E, 0x009F,  // 98
    0x00A0, 0x0385, 0x0386, 0x00A3, 0x00A4, 0x00A5, 0x00A6, 0x00A7,  // A0
    0x00A8, 0x00A9, 0xF8F9, 0x00AB, 0x00AC, 0x00AD, 0x00AE, 0x2015,  // A8
    0x00B0, 0x00B1, 0x00B2, 0x00B3, 0x0384, 0x00B5, 0x00B6, 0x00B7,  // B0
    0x0388, 0x0389, 0x038A, 0x00BB, 0x038C, 0x00BD, 0x038E, 0x038F,  // B8
    0x0390, 0x0391, 0x0392, 0x0393, 0x0394, 0x0395, 0x0396, 0x0397,  // C0
    0x0398, 0x0399, 0x039A, 0x039B, 0x039C, 0x039D, 0x039E, 0x039F,  // C8
    0x03A0, 0x03A1, 0xF8FA, 0x03A3, 0x03A4, 0x03A5, 0x03A6, 0x03A7,  // D0
    0x03A8, 0x03A9, 0x03AA, 0x03AB, 0x03AC, 0x03AD, 0x03AE, 0x03AF,  // D8
    0x03B0, 0x03B1, 0x03B2, 0x03B3, 0x03B4, 0x03B5, 0x03B6, 0x03B7,  // E0
    0x03B8, 0x03B9, 0x03BA, 0x03BB, 0x03BC, 0x03BD, 0x03BE, 0x03BF,  // E8
    0x03C0, 0x03C1, 0x03C2, 0x03C3, 0x03C4, 0x03C5, 0x03C6, 0x03C7,  // F0
    0x03C8, 0x03C9, 0x03CA, 0x03CB, 0x03CC, 0x03CD, 0x03CE, 0xF8FB,  // F8
};

/// The Unicode value of one byte.
constexpr char16_t toUnicode(char byte) {
    const auto value = static_cast<unsigned char>(byte);
    return value < 0x80 ? static_cast<char16_t>(value) : upperHalf[value - 0x80U];
}

/// The byte of a Unicode value, or −1 when the code page lacks it.
constexpr int fromUnicode(char32_t value) {
    if (value < 0x80) return static_cast<int>(value);
    // Most Greek letters have one constant distance from their Unicode values; the rest of the table is
    // searched.
    const char32_t guess = value >= 0x388 && value <= 0x3CE ? value - 0x2D0 : value;
    if (guess >= 0x80 && guess <= 0xFF && upperHalf[guess - 0x80] == value) return static_cast<int>(guess);
    for (std::size_t i = 0; i < upperHalf.size(); ++i) {
        if (upperHalf[i] == value) return static_cast<int>(0x80 + i);
    }
    return -1;
}

/// The lower-case form of a letter, Latin or Greek; any other byte stays.
constexpr char lowerByte(char byte) {
    const auto value = static_cast<unsigned char>(byte);
    const auto moved = [value](int distance) { return static_cast<char>(value + distance); };
    if (value >= 'A' && value <= 'Z') return moved('a' - 'A');
    if (value >= 0xC1 && value <= 0xDB && value != 0xD2) return moved(0x20);  // Α to Ϋ
    if (value == 0xA2) return moved(0xDC - 0xA2);                             // Ά
    if (value >= 0xB8 && value <= 0xBA) return moved(0xDD - 0xB8);            // Έ, Ή, Ί
    if (value == 0xBC) return moved(0xFC - 0xBC);                             // Ό
    if (value == 0xBE || value == 0xBF) return moved(0xFD - 0xBE);            // Ύ, Ώ
    return byte;
}

/// One character taken from UTF-8 text.
struct Utf8Character {
    static constexpr char32_t malformed = 0xFFFFFFFF;

    char32_t value;      ///< the Unicode value, or `malformed`
    std::size_t length;  ///< how many bytes it takes; 1 for a malformed one
};

/// The character that starts at `offset`, which must be inside the text. Overlong forms, surrogates, values
/// above U+10FFFF and incomplete sequences are malformed.
constexpr Utf8Character decodeUtf8(std::string_view text, std::size_t offset) {
    constexpr Utf8Character bad{Utf8Character::malformed, 1};
    const auto lead = static_cast<unsigned char>(text[offset]);
    if (lead < 0x80) return {lead, 1};
    if (lead < 0xC2 || lead > 0xF4) return bad;
    const std::size_t length = lead < 0xE0 ? 2 : lead < 0xF0 ? 3 : 4;
    if (text.size() - offset < length) return bad;
    char32_t value = lead & (0x7FU >> length);
    for (std::size_t i = 1; i < length; ++i) {
        const auto next = static_cast<unsigned char>(text[offset + i]);
        if ((next & 0xC0U) != 0x80) return bad;
        value = (value << 6) | (next & 0x3FU);
    }
    const char32_t min = length == 2 ? 0x80 : length == 3 ? 0x800 : 0x10000;
    const bool surrogate = value >= 0xD800 && value <= 0xDFFF;
    if (value < min || value > 0x10FFFF || surrogate) return bad;
    return {value, length};
}

}  // namespace platform::codepage
