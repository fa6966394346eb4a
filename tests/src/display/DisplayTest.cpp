#include <gtest/gtest.h>

#include <cstring>

#include "src/display/BitmapPalette.h"
#include "src/display/FlightPath.h"
#include "src/display/Picture.h"
#include "tests/support/TestFolder.h"

namespace kalyxo {
namespace {

using platform::BITMAPINFOHEADER;
using platform::CRect;
using platform::PALETTEENTRY;

TEST(FlightPathTest, HasARectangleForEach40PixelsBetweenTheCorners) {
    const struct {
        const char* what;
        CRect start;
        CRect end;
        std::vector<CRect> frames;
    } cases[] = {
        {"39 pixels", CRect::at(0, 0, 144, 16), CRect::at(39, 0, 20, 20), {}},
        {"40 pixels", CRect::at(5, 5, 144, 16), CRect::at(5, 45, 20, 20), {CRect::at(5, 5, 144, 16)}},
        {"3, 4, 5",
         CRect::at(0, 0, 10, 10),
         CRect::at(48, 64, 30, 10),
         {CRect::at(0, 0, 10, 10), CRect::at(24, 32, 20, 10)}},
        {"steps cut towards zero, also backwards",
         CRect::at(100, 100, 144, 16),
         CRect::at(-21, 89, 20, 20),
         {CRect::at(100, 100, 144, 16), CRect::at(60, 97, 103, 17), CRect::at(20, 94, 62, 18)}},
    };
    for (const auto& row : cases) EXPECT_EQ(FlightPath(row.start, row.end), row.frames) << row.what;
}

TEST(FlightPathTest, RectanglesThatTouchDoNotOverlap) {
    constexpr CRect panel = CRect::at(100, 50, 144, 44);
    EXPECT_TRUE(Overlap(panel, CRect::at(243, 93, 20, 20)));
    EXPECT_TRUE(Overlap(CRect::at(0, 0, 500, 500), panel));
    for (const CRect& beside : {CRect::at(244, 60, 20, 20), CRect::at(80, 60, 20, 20),
                                CRect::at(120, 94, 20, 20), CRect::at(120, 30, 20, 20)}) {
        EXPECT_FALSE(Overlap(panel, beside)) << beside.left << ',' << beside.top;
    }
}

TEST(PictureTest, AbsurdSizesAreRefusedBeforeTheyAreRead) {
    const struct {
        std::int32_t width, height;
        PictureResult result;
    } cases[] = {{8192, 8192, PictureResult::loaded}, {8192, 8193, PictureResult::fileError}};
    const TestFolder folder;
    for (const auto& [width, height, result] : cases) {
        BITMAPINFOHEADER header;
        header.biSize = sizeof(header);
        header.biWidth = width;
        header.biHeight = height;
        header.biBitCount = 24;
        std::string head("BM\0\0\0\0\0\0\0\0\x36\0\0\0", 14);
        head.append(reinterpret_cast<const char*>(&header), sizeof(header));
        std::filesystem::resize_file(folder.write("p.bmp", head), std::uintmax_t{6} << 30);
        Picture picture;
        EXPECT_EQ(picture.LoadPicture(folder.asDrive(), "C:\\p.bmp"), result) << width << ' ' << height;
    }
}

/// A bitmap resource: the header and so many colours, each with a red of its number.
std::vector<std::byte> resource(std::uint16_t bits, std::uint32_t used, std::size_t colours) {
    BITMAPINFOHEADER header;
    header.biBitCount = bits;
    header.biClrUsed = used;
    std::vector<std::byte> bytes(sizeof(header) + colours * 4);
    std::memcpy(bytes.data(), &header, sizeof(header));
    for (std::size_t i = 0; i < colours; ++i) {
        const std::byte stored[] = {std::byte{3}, std::byte{2}, static_cast<std::byte>(i), std::byte{9}};
        std::memcpy(bytes.data() + sizeof(header) + i * 4, stored, sizeof(stored));
    }
    return bytes;
}

TEST(BitmapPaletteTest, HasTheColoursOfTheHeader) {
    const struct {
        const char* what;
        std::uint16_t bits;
        std::uint32_t used;
        std::size_t stored;
        std::uint32_t count;
    } cases[] = {
        {"8 bits", 8, 0, 256, 256},    {"4 bits", 4, 0, 16, 16},         {"1 bit", 1, 0, 2, 2},
        {"few of 8 bits", 8, 7, 7, 7}, {"24 bits", 24, 0, 0, 0},         {"24 bits with 16", 24, 16, 16, 16},
        {"cut table", 8, 0, 255, 0},   {"absurd", 24, 0xFFFFFFFF, 4, 0},
    };
    for (const auto& row : cases) {
        std::uint32_t count = 77;
        const auto palette = CreatePaletteFromHeader(resource(row.bits, row.used, row.stored), count);
        EXPECT_EQ(count, row.count) << row.what;
        EXPECT_EQ(palette.has_value(), row.count != 0) << row.what;
        if (!palette) continue;
        ASSERT_EQ(palette->size(), row.count) << row.what;
        const auto last = static_cast<std::uint8_t>(row.count - 1);
        EXPECT_EQ(palette->back(), (PALETTEENTRY{last, 2, 3, 0})) << row.what;
    }
    std::uint32_t count = 77;
    EXPECT_FALSE(CreatePaletteFromHeader(std::vector<std::byte>(39), count));
    EXPECT_EQ(count, 0U);
}

}  // namespace
}  // namespace kalyxo
