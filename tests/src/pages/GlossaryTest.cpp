#include <gtest/gtest.h>

#include "src/pages/GlossaryPopup.h"
#include "src/pages/GlossaryText.h"
#include "tests/support/TestDrives.h"

namespace kalyxo {
namespace {

using platform::CRect;

TEST(DefinitionTest, IsWhatFollowsTheFirstLine) {
    const std::string longTitle(49, 't');
    const std::string longLine(4998, 'x');
    const struct {
        const char* what;
        std::string file;
        std::optional<std::string> text;
    } cases[] = {
        {"no end of line", "title\nfirst", "first"},
        {"empty lines within", "title\n\nfirst\n\nsecond\n", "first\r\n\r\nsecond"},
        {"just long enough", "title\r\na\r\nbc", "a\r\nbc"},
        {"empty file", "", std::nullopt},
        {"a long title's rest counts as text", longTitle + "rest!\nmore", "rest!\r\nmore"},
        {"a title of 49 bytes leaves its line end", longTitle + "\nfirst", "first"},
        {"a long line is broken", "title\n" + longLine + "yz\n", longLine + "\r\nyz"},
        {"a NUL ends its line", std::string("title\nfirst\0gone\nlast", 21), "first\r\nlast"},
    };
    TestDrives drives;
    for (const auto& c : cases) {
        drives.put("D:\\glossary\\word.htm", c.file);
        EXPECT_EQ(ReadDefinition(drives.files, "D:\\glossary\\WORD.htm"), c.text) << c.what;
    }
    std::filesystem::resize_file(drives.host("D:\\glossary\\word.htm"), std::uintmax_t{1} << 40);
    EXPECT_EQ(ReadDefinition(drives.files, "D:\\glossary\\word.htm"), std::nullopt) << "absurd size";
    EXPECT_EQ(ReadDefinition(drives.files, "D:\\glossary\\"), std::nullopt);
}

TEST(GlossaryFileTest, LiesInTheGlossaryFolder) {
    const std::pair<const char*, std::optional<std::string>> cases[] = {
        {"D:\\1.htm", std::nullopt},   {"pjqbhg..\\bookmark.dat", ""}, {"pjqbhg../bookmark.dat", ""},
        {"pjqbhgz:\\etc\\passwd", ""}, {"pjqbhgz:passwd", ""},
    };
    for (const auto& [url, file] : cases) EXPECT_EQ(GlossaryFile(url), file) << url;
}

TEST(GlossaryPopupTest, StaysInTheClientArea) {
    const struct {
        platform::CPoint pointer;
        int lines;
        CRect place;
    } cases[] = {
        {{401, 100}, 2, CRect::at(371, 114, 260, 32)},  // the right edge 5 pixels inside
        {{402, 100}, 2, CRect::at(371, 114, 260, 32)},
        {{300, 403}, 2, CRect::at(270, 417, 260, 32)},  // the lower edge 5 pixels inside
        {{300, 404}, 2, CRect::at(270, 361, 260, 32)},
        {{300, 200}, 20, CRect::at(270, 0, 260, 302)},  // room neither below nor above
    };
    for (const auto& c : cases) {
        EXPECT_EQ(PlaceGlossaryPopup(c.pointer, {636, 454}, c.lines), c.place)
            << c.pointer.x << "," << c.pointer.y;
    }
}

}  // namespace
}  // namespace kalyxo
