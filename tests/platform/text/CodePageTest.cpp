#include <gtest/gtest.h>
#include <iconv.h>
#include <clocale>
#include <cwctype>

#include <array>
#include <optional>
#include <string>

#include "platform/text/CodePage1253.h"
#include "platform/text/CodePageTable.h"
#include "platform/text/Fold.h"
#include "platform/text/GreekLiteral.h"

namespace platform {
namespace {

/// The C library's conversion of one byte of the code page; nothing for an undefined byte.
std::optional<std::string> libraryUtf8(char byte) {
    const iconv_t converter = iconv_open("UTF-8", "CP1253");
    std::array<char, 8> target{};
    char* from = &byte;
    char* to = target.data();
    std::size_t fromLeft = 1;
    std::size_t toLeft = target.size();
    const bool done = iconv(converter, &from, &fromLeft, &to, &toLeft) != static_cast<std::size_t>(-1);
    iconv_close(converter);
    return done ? std::optional(std::string(target.data(), to)) : std::nullopt;
}

TEST(CodePage, EveryByteGoesToUnicodeAndBack) {
    int undefinedBytes = 0;
    for (int i = 0; i < 256; ++i) {
        const std::string byte(1, static_cast<char>(i));
        const auto expected = libraryUtf8(byte[0]);
        undefinedBytes += !expected;
        if (expected) {
            EXPECT_EQ(toUtf8(byte), *expected) << i;
        }
        EXPECT_EQ(fromUtf8Strict(toUtf8(byte)), byte) << i;
    }
    EXPECT_EQ(undefinedBytes, 17);
}

TEST(CodePage, CharactersOutsideAreReplacedOrReported) {
    struct Case {
        std::string utf8;
        std::string replaced;
        std::size_t badOffset;
    };
    const Case cases[] = {
        {"α日β", "\xE1?\xE2", 2},         // not in the code page
        {"😀", "?", 0},                   // beyond the basic plane
        {"ab\x80", "ab?", 2},             // continuation without a lead
        {"\xCE", "?", 0},                 // cut
        {"\xE2\x82", "??", 0},            // cut later
        {"\xC1\x81", "??", 0},            // overlong A
        {"\xE0\x8E\xB1", "???", 0},       // overlong alpha
        {"\xED\xA0\x80", "???", 0},       // surrogate
        {"\xF4\x90\x80\x80", "????", 0},  // above U+10FFFF
        {"\xFF", "?", 0},                 // no lead at all
        {"\xCE\xB1\xCE", "\xE1?", 2},     // good, then cut
    };
    for (const auto& row : cases) {
        EXPECT_EQ(fromUtf8(row.utf8), row.replaced) << row.utf8;
        std::size_t offset = 99;
        EXPECT_FALSE(fromUtf8Strict(row.utf8, &offset)) << row.utf8;
        EXPECT_EQ(offset, row.badOffset) << row.utf8;
    }
    EXPECT_EQ(fromUtf8Strict(""), "");
}

TEST(CodePage, LowerCaseAgreesWithUnicode) {
    const locale_t unicode = newlocale(LC_CTYPE_MASK, "C.UTF-8", nullptr);
    ASSERT_TRUE(unicode);
    for (int i = 0; i < 256; ++i) {
        const char byte = static_cast<char>(i);
        const auto lowered = towlower_l(static_cast<wint_t>(codepage::toUnicode(byte)), unicode);
        const int expected = codepage::fromUnicode(static_cast<char32_t>(lowered));
        EXPECT_EQ(lower(byte), expected < 0 ? byte : static_cast<char>(expected)) << i;
    }
    freelocale(unicode);
    EXPECT_TRUE(equalsNoCase("ΆΈΉΊΌΎΏΪΫ abZ"_gr, "άέήίόύώϊϋ ABz"_gr));
    EXPECT_FALSE(equalsNoCase("abc", "ab"));
}

TEST(CodePage, FoldLeavesCaseAndAccentsAside) {
    const std::pair<std::string_view, std::string_view> cases[] = {
        {"ΆΈΉΊΌΎΏ"_gr, "αεηιουω"_gr}, {"άέήίόύώ"_gr, "αεηιουω"_gr}, {"ΪΫϊϋΐΰ"_gr, "ιυιυιυ"_gr},
        {"Δομές"_gr, "δομεσ"_gr},     {"ΔΟΜΕΣ"_gr, "δομεσ"_gr},
    };
    for (const auto& [text, folded] : cases) EXPECT_EQ(fold(text), folded) << toUtf8(text);
    EXPECT_EQ(fold("H2SO4 \xB5\xD2\xFF"), "h2so4 \xB5\xD2\xFF");
}

}  // namespace
}  // namespace platform
