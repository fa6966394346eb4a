#include <QImage>
#include <QWidget>
#include <array>
#include <limits>
#include <tuple>

#include "platform/drawing/DC.h"
#include "platform/windows/WindowDC.h"
#include "tests/support/windows/TestProgram.h"

namespace windows_test {

using namespace platform;

namespace {

constexpr COLORREF red = RGB(255, 0, 0);

/// A window of 20 × 10 pixels on which the tests draw.
class DrawingTest : public ProgramTest {
  protected:
    void SetUp() override {
        open();
        window_ = child("canvas", CRect::at(0, 0, 20, 10));
    }
    CClientDC dc() { return CClientDC(*window_); }
    CDC bitmapDC(UINT id) {
        CBitmap bitmap;
        EXPECT_TRUE(bitmap.LoadBitmap(id));
        CDC memory = CDC::CreateCompatibleDC(dc());
        memory.SelectObject(bitmap);
        return memory;
    }
    std::string row(int y, int from, int to) {
        std::string colours;
        for (int x = from; x < to; ++x) colours += shownColour(*window_, x, y) + " ";
        return colours;
    }
    std::unique_ptr<TestWnd> window_;
};

TEST_F(DrawingTest, CopiesBitmapsPixelByPixelAndStretchesThemWithoutBlending) {
    CDC source = bitmapDC(1);
    dc().StretchBlt(0, 0, 6, 1, source, 0, 0, 3, 1);
    EXPECT_EQ(row(0, 0, 7), "ff0000 ff0000 00ff00 00ff00 0000ff 0000ff ffffff ");
    dc().BitBlt(2, 3, 2, 2, source, 1, 0);
    EXPECT_EQ(row(3, 1, 5), "ffffff 00ff00 0000ff ffffff ");
    EXPECT_EQ(row(4, 1, 5), "ffffff 000000 000000 ffffff ");
}

TEST_F(DrawingTest, CopiesOnlyWhatTheSourceHas) {
    CDC source = bitmapDC(1);
    dc().FillSolidRect({0, 0, 20, 10}, red);
    dc().BitBlt(0, 0, 6, 1, source, 3, 0);
    EXPECT_EQ(row(0, 0, 3), "ffffff ff0000 ff0000 ");
    dc().BitBlt(4, 0, 4, 1, source, -2, 0);
    EXPECT_EQ(row(0, 4, 9), "ff0000 ff0000 ff0000 00ff00 ff0000 ");
}

TEST_F(DrawingTest, DrawsNothingWhereThereIsNothingToDraw) {
    CDC source = bitmapDC(1);
    CDC canvas = dc();
    canvas.FillSolidRect({0, 0, 20, 10}, red);
    canvas.BitBlt(0, 0, 0, 5, source, 0, 0);
    canvas.StretchBlt(0, 0, -3, 5, source, 0, 0, 2, 2);
    canvas.StretchBlt(0, 0, 3, 5, source, 0, 0, 0, 2);
    canvas.BitBlt(0, 0, 5, 5, CDC(), 0, 0);
    canvas.FillSolidRect({5, 5, 2, 2}, RGB(0, 0, 0));
    CDC().FillSolidRect({0, 0, 5, 5}, 0);
    EXPECT_EQ(row(0, 0, 3), "ff0000 ff0000 ff0000 ");
    EXPECT_FALSE(CBitmap().LoadBitmap(99));
}

TEST_F(DrawingTest, CopiesAPictureOntoItself) {
    CDC canvas = dc();
    canvas.BitBlt(0, 0, 4, 1, bitmapDC(1), 0, 0);
    canvas.BitBlt(1, 0, 4, 1, canvas, 0, 0);
    EXPECT_EQ(row(0, 0, 5), "ff0000 ff0000 00ff00 0000ff ffffff ");
}

TEST_F(DrawingTest, FillsWithThePatternFromTheOrigin) {
    CBitmap checker;
    ASSERT_TRUE(checker.LoadBitmap(2));
    dc().FillRect({1, 0, 5, 1}, CBrush::Pattern(checker));
    EXPECT_EQ(row(0, 1, 5), "ffffff 000000 ffffff 000000 ");
}

TEST_F(DrawingTest, DrawsBottomUpRowsWithTheirPadding) {
    // Two rows of three pixels: 9 bytes of colours and 3 bytes of padding each.
    const std::vector<std::uint8_t> pixels = {255, 0, 0,   255, 0,   0, 255, 0,   0,   9, 9, 9,
                                              0,   0, 255, 0,   255, 0, 255, 255, 255, 9, 9, 9};
    dc().SetDIBitsToDevice(4, 2, {.biWidth = 3, .biHeight = 2}, pixels.data());
    EXPECT_EQ(row(2, 4, 7), "ff0000 00ff00 ffffff ");
    EXPECT_EQ(row(3, 4, 7), "0000ff 0000ff 0000ff ");
}

TEST_F(DrawingTest, DrawsNoPictureOfAnImpossibleSize) {
    constexpr std::int32_t most = std::numeric_limits<std::int32_t>::max();
    const std::uint8_t pixel[4] = {};
    for (const auto& [width, height] : {std::pair{0, 1}, {1, 0}, {-1, 1}, {1, -1}, {most, most}, {most, 1}}) {
        dc().SetDIBitsToDevice(0, 0, {.biWidth = width, .biHeight = height}, pixel);
    }
    dc().SetDIBitsToDevice(0, 0, {.biWidth = 1, .biHeight = 1}, nullptr);
    EXPECT_EQ(shownColour(*window_, 0, 0), "ffffff");
}

/// A bitmap of 2 × 2 pixels with 8 bits each, whose rows are padded to 4 bytes.
TEST_F(DrawingTest, MakesBitmapsOfDeviceIndependentOnes) {
    constexpr auto bytes = [](auto... values) {
        return std::vector<std::byte>{static_cast<std::byte>(values)...};
    };
    const std::array<PALETTEENTRY, 2> colours = {{{255, 0, 0, 0}, {0, 255, 0, 0}}};
    const BITMAPINFOHEADER header{.biWidth = 2, .biHeight = 2, .biBitCount = 8};
    CBitmap bitmap;
    ASSERT_TRUE(bitmap.CreateDIBitmap(header, colours, bytes(1, 1, 9, 9, 0, 2, 9, 9)));
    CDC memory = CDC::CreateCompatibleDC(dc());
    memory.SelectObject(bitmap);
    dc().BitBlt(0, 0, 2, 2, memory, 0, 0);
    EXPECT_EQ(row(0, 0, 2), "ff0000 000000 ") << "a colour that is not in the table is black";
    EXPECT_EQ(row(1, 0, 2), "00ff00 00ff00 ");

    EXPECT_FALSE(bitmap.CreateDIBitmap(header, colours, bytes(1, 1, 9, 9, 0, 2, 9)));
    for (const auto& [width, height, bits] :
         {std::tuple{0, 2, 8}, {2, -2, 8}, {2, 2, 4}, {2, 2, 16}, {0x7FFFFFFF, 0x7FFFFFFF, 24}}) {
        const BITMAPINFOHEADER wrong{
            .biWidth = width, .biHeight = height, .biBitCount = static_cast<std::uint16_t>(bits)};
        EXPECT_FALSE(bitmap.CreateDIBitmap(wrong, colours, bytes(1, 1, 9, 9, 0, 2, 9, 9))) << bits;
    }
}

/// A picture whose pixels are half a logical pixel wide and high.
TEST_F(DrawingTest, DrawsPicturesWithMorePixelsInTheSizeOfTheirCoordinates) {
    std::vector<std::uint8_t> pixels;
    for (int y = 0; y < 4; ++y) {
        for (int x = 0; x < 4; ++x) {
            const std::uint8_t left = x < 2 ? 255 : 0;
            pixels.insert(pixels.end(), {0, static_cast<std::uint8_t>(255 - left), left});
        }
    }
    const BITMAPINFOHEADER header{.biWidth = 4, .biHeight = 4};
    CBitmap bitmap;
    ASSERT_TRUE(bitmap.CreateDIBitmap(header, {}, std::as_bytes(std::span(pixels)), 2));
    EXPECT_EQ(bitmap.Width(), 2);
    EXPECT_EQ(bitmap.Height(), 2);
    CDC memory = CDC::CreateCompatibleDC(dc());
    memory.SelectObject(bitmap);
    dc().BitBlt(1, 0, 2, 2, memory, 0, 0);
    EXPECT_EQ(row(1, 0, 4), "ffffff ff0000 00ff00 ffffff ");
    dc().SetDIBitsToDevice(5, 0, header, pixels.data(), 2);
    EXPECT_EQ(row(1, 4, 8), "ffffff ff0000 00ff00 ffffff ");
    EXPECT_EQ(row(2, 4, 8), "ffffff ffffff ffffff ffffff ");
}

using SharpScreenTest = DrawingTest;

TEST_F(SharpScreenTest, TakesTheSharperOfTwoPicturesAndShowsAllItsPixels) {
    if (PictureScale() == 1) GTEST_SKIP() << "for screens with two pixels for each coordinate";
    CBitmap bitmap;
    ASSERT_TRUE(bitmap.LoadBitmap(3));
    EXPECT_EQ(bitmap.Width(), 2);
    CDC memory = CDC::CreateCompatibleDC(dc());
    memory.SelectObject(bitmap);
    dc().BitBlt(0, 0, 2, 1, memory, 0, 0);
    const QImage shown = widgetOf(*window_).grab().toImage();
    std::string pixels;
    for (int x = 0; x < 4; ++x) pixels += shown.pixelColor(x, 0).name().toStdString();
    EXPECT_EQ(pixels, "#ff0000#00ff00#0000ff#000000");
}

}  // namespace

}  // namespace windows_test
