#include <gtest/gtest.h>

#include <set>

#include "src/components/ElementIndex.h"
#include "src/components/HostedComponents.h"
#include "src/display/Picture.h"
#include "src/pages/PageCache.h"
#include "src/view/KeyboardChoice.h"
#include "src/view/MainMenuLayout.h"
#include "tests/support/TestDrives.h"

namespace kalyxo {
namespace {

using platform::CPoint;

/// Which way an arrow key goes, by its letter.
platform::UINT arrow(char way) {
    return way == 'L'   ? platform::VK_LEFT
           : way == 'R' ? platform::VK_RIGHT
           : way == 'U' ? platform::VK_UP
                        : platform::VK_DOWN;
}

TEST(KeyboardChoiceTest, GoesByTheArrowsFromSlotToSlotAndAreaToArea) {
    const int area = OpenableItems::IndexOfArea(0);
    const struct {
        const char* what;
        bool menu;
        int selected;
        std::string_view keys;
        std::vector<int> items;
    } cases[] = {
        {"along the bar, past the filler", false, 7, "RRR", {8, 9, 10}},
        {"the bar's ends", false, 1, "LL", {0, -1}},
        {"over the selected slot", false, 3, "RLL", {4, 2, 1}},
        {"nothing above and below the bar alone", false, 3, "UD", {-1, -1}},
        {"round the menu",
         true,
         9,
         "DDDDRUULLLU",
         {area + 3, area + 2, area + 1, area + 0, area + 8, area + 7, area + 6, area + 5, area + 4, area + 3,
          3}},
        {"along the upper row and down",
         true,
         9,
         "RRRRURD",
         {area + 3, area + 4, area + 5, area + 6, area + 5, area + 6, area + 7}},
        {"no area farther out", true, 9, "LLLDD", {area + 3, area + 2, -1, area + 1, area + 0}},
    };
    BarLayout bar;
    bar.SetWidth(636);
    for (const auto& row : cases) {
        const OpenableItems items(bar, row.selected, row.menu ? std::optional(CPoint{4, 60}) : std::nullopt);
        std::vector<int> passed;
        int at = -1;
        for (const char key : row.keys) {
            passed.push_back(KeyboardChoice::Next(items, at, arrow(key)));
            if (passed.back() >= 0) at = passed.back();
        }
        EXPECT_EQ(passed, row.items) << row.what;
    }
}

/// From wherever the arrows come in, they come to everything but the selected slot.
TEST(KeyboardChoiceTest, ComesToEverything) {
    for (const int width : {560, 636, 1920}) {
        BarLayout bar;
        bar.SetWidth(width);
        const OpenableItems items(bar, kMainMenuSlot, MainMenuLayout::Origin({width, 400}, {628, 384}));
        std::set<int> reached;
        std::vector<int> waiting = {KeyboardChoice::Next(items, -1, platform::VK_DOWN)};
        while (!waiting.empty()) {
            const int item = waiting.back();
            waiting.pop_back();
            if (item < 0 || !reached.insert(item).second) continue;
            for (const char key : {'L', 'R', 'U', 'D'}) {
                waiting.push_back(KeyboardChoice::Next(items, item, arrow(key)));
            }
        }
        EXPECT_EQ(reached.size(), items.Places().size() - 1) << width;
        EXPECT_FALSE(reached.contains(kMainMenuSlot));
    }
}

TEST(PageCacheTest, TwoProgramsAtOnceHaveAFolderEach) {
    TestDrives drives;
    drives.put("C:\\Kalyxo\\kalyxo.exe", "");
    const CacheLocation inside = LocateCache("C:\\Kalyxo", "C:\\", false);
    PageCache first(drives.files);
    first.Open(inside);
    drives.put(first.NextTarget(), "of the first");
    {
        PageCache second(drives.files);
        second.Open(inside);
        EXPECT_EQ(second.Folder(), "C:\\Kalyxo\\cache2\\");
        drives.put(second.NextTarget(), "of the second");
        second.CleanCache(true);
    }
    EXPECT_FALSE(drives.has("C:\\Kalyxo\\cache2"));
    EXPECT_EQ(drives.get("C:\\Kalyxo\\cache\\1.htm"), "of the first");
    first.CleanCache(true);
    PageCache third(drives.files);
    third.Open(inside);
    EXPECT_EQ(third.Folder(), "C:\\Kalyxo\\cache\\");
}

TEST(PageCacheTest, OutsideTheInstalledFolderTheLastProgramOutRemovesNothingOfOthers) {
    TestDrives drives;
    const CacheLocation outside = LocateCache("C:\\Kalyxo", "C:\\", true);
    PageCache first(drives.files);
    PageCache second(drives.files);
    first.Open(outside);
    second.Open(outside);
    drives.put(second.NextTarget(), "of the second");
    first.CleanCache(true);
    EXPECT_FALSE(drives.has("C:\\klyx"));
    EXPECT_EQ(drives.get("C:\\klyx2\\1.htm"), "of the second");
}

TEST(ElementIndexTest, TheFirstRecordOfAKeyCounts) {
    TestDrives drives;
    ElementIndex index;
    EXPECT_FALSE(index.Load(drives.files, "D:\\"));
    drives.put("D:\\ptable.ndx", std::string("\x01\x0A\x00\x00\x00\xFF\x0B\x00\x00\x00\x01", 11));
    EXPECT_TRUE(index.Load(drives.files, "D:\\"));
    EXPECT_EQ(index.PageOf(1), 10);
    EXPECT_EQ(index.PageOf(255), 11);
    EXPECT_FALSE(index.PageOf(-1) || index.PageOf(257) || index.PageOf(2));
}

TEST(ComponentVersionsTest, AreComparedAsText) {
    EXPECT_TRUE(OutdatedComponents({"1.0.023", "1.0.21", "1.0.100", "1.0.012", "1.0.010"}).empty());
    EXPECT_EQ(OutdatedComponents({"1.0.022", "", "1.0.03", "1.0.0", "0"}),
              (std::vector<std::string_view>{"KZDATAAN", "KYPT", "KZSELECT", "KYMOL", "KZZOOM"}));
}

/// The bytes of a BMP file with `pixelBytes` bytes of pixels.
std::string bitmap(std::int32_t width, std::int32_t height, std::uint16_t bits, std::size_t pixelBytes,
                   std::uint32_t offset = 54) {
    std::string file(54, '\0');
    const auto put = [&](std::size_t at, auto value) {
        file.replace(at, sizeof(value), std::string(reinterpret_cast<const char*>(&value), sizeof(value)));
    };
    put(10, offset);
    put(14, std::uint32_t{40});
    put(18, width);
    put(22, height);
    put(28, bits);
    return file + std::string(pixelBytes, '\x7F');
}

TEST(PictureTest, TakesOnlyWholeBottomUp24BitPictures) {
    TestDrives drives;
    constexpr std::int32_t most = 0x7FFFFFFF;
    const struct {
        const char* what;
        std::string file;
        PictureResult result;
    } cases[] = {
        {"padded rows", bitmap(10, 2, 24, 64), PictureResult::loaded},
        {"one byte short", bitmap(10, 2, 24, 63), PictureResult::fileError},
        {"empty file", "", PictureResult::fileError},
        {"cut header", bitmap(10, 2, 24, 0).substr(0, 30), PictureResult::fileError},
        {"top-down", bitmap(10, -2, 24, 64), PictureResult::fileError},
        {"8-bit", bitmap(10, 2, 8, 64), PictureResult::fileError},
        {"no width", bitmap(0, 2, 24, 64), PictureResult::fileError},
        {"absurd size", bitmap(most, most, 24, 64), PictureResult::fileError},
        {"width whose stride wraps in 32 bits", bitmap(0x55555556, 1, 24, 64), PictureResult::fileError},
        {"pixels beyond the file", bitmap(1, 1, 24, 4, 0xFFFFFFF0U), PictureResult::fileError},
    };
    for (const auto& c : cases) {
        drives.put("D:\\p.bmp", c.file);
        Picture picture;
        EXPECT_EQ(picture.LoadPicture(drives.files, "D:\\p.bmp"), c.result) << c.what;
        EXPECT_EQ(picture.Loaded(), c.result == PictureResult::loaded) << c.what;
    }
    Picture picture;
    drives.put("D:\\p.bmp", bitmap(10, 2, 24, 64));
    picture.LoadPicture(drives.files, "D:\\p.bmp");
    EXPECT_EQ(picture.LoadPicture(drives.files, "D:\\none.bmp"), PictureResult::missing);
    EXPECT_TRUE(picture.Loaded());
}

}  // namespace
}  // namespace kalyxo
