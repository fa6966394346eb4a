#include "src/display/Picture.h"

#include <gtest/gtest.h>

#include "tests/support/TestDrives.h"

namespace kalyxo {
namespace {

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
