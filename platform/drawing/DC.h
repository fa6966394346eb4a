#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <span>
#include <string_view>

#include "platform/base/Geometry.h"
#include "platform/base/Messages.h"

class QImage;

namespace platform {

struct BITMAPINFOHEADER;

/// A colour of a palette.
struct PALETTEENTRY {
    std::uint8_t peRed = 0;
    std::uint8_t peGreen = 0;
    std::uint8_t peBlue = 0;
    std::uint8_t peFlags = 0;
    friend bool operator==(const PALETTEENTRY&, const PALETTEENTRY&) = default;
};

/// How many pixels, across and down, a drawn picture may have for each of the coordinates it takes: 2 on
/// screens that show them, else 1.
int PictureScale();

/// A bitmap resource of the program, or a bitmap to draw on.
class CBitmap {
  public:
    /// Loads bitmap resource `id`; false when there is none.
    bool LoadBitmap(UINT id);
    /// Makes it of a whole bottom-up picture of 24 bits, or of 8 with its `colours`; `scale` of its pixels
    /// lie on each coordinate, across and down. False, and nothing is made, for any other.
    bool CreateDIBitmap(const BITMAPINFOHEADER& header, std::span<const PALETTEENTRY> colours,
                        std::span<const std::byte> pixels, int scale = 1);
    /// Takes the picture of a whole image file; false when it cannot be read.
    bool LoadFile(std::string_view bytes);
    /// The whole of it scaled to a size; not loaded if this one is not.
    CBitmap ResizedTo(int width, int height) const;
    /// The pixels of a loaded bitmap, for the inside of the platform.
    const QImage& image() const { return *image_; }
    bool loaded() const { return image_ != nullptr; }
    /// Size in coordinates.
    int Width() const;
    int Height() const;

  private:
    friend class CDC;
    friend class CBrush;
    std::shared_ptr<QImage> image_;
};

/// What areas are filled with.
class CBrush {
  public:
    static CBrush solid(COLORREF colour);
    /// Repeats the bitmap from the origin of the target.
    static CBrush pattern(const CBitmap& bitmap);

  private:
    friend class CDC;
    COLORREF colour_ = 0;
    std::shared_ptr<QImage> pattern_;
};

/// The information header of a device-independent bitmap, as it stands in files.
struct BITMAPINFOHEADER {
    std::uint32_t biSize = 40;
    std::int32_t biWidth = 0;
    std::int32_t biHeight = 0;
    std::uint16_t biPlanes = 1;
    std::uint16_t biBitCount = 24;
    std::uint32_t biCompression = 0;
    std::uint32_t biSizeImage = 0;
    std::int32_t biXPelsPerMeter = 0;
    std::int32_t biYPelsPerMeter = 0;
    std::uint32_t biClrUsed = 0;
    std::uint32_t biClrImportant = 0;
};

/// Draws on a window's picture or on a bitmap, at any time. Windows keep what is drawn.
class CDC {
  public:
    class Target;

    /// A context without anything to draw on.
    CDC();
    CDC(CDC&&) noexcept;
    CDC& operator=(CDC&&) noexcept;
    virtual ~CDC();

    /// A context to draw bitmaps from; select a bitmap into it.
    static CDC CreateCompatibleDC(const CDC& like);
    /// Makes the bitmap what this memory context draws on and copies from.
    void SelectObject(const CBitmap& bitmap);

    void BitBlt(int x, int y, int width, int height, const CDC& source, int sourceX, int sourceY);
    void StretchBlt(int x, int y, int width, int height, const CDC& source, int sourceX, int sourceY,
                    int sourceWidth, int sourceHeight);
    void FillSolidRect(const CRect& rect, COLORREF colour);
    void FillRect(const CRect& rect, const CBrush& brush);
    /// Draws a whole 24-bit bottom-up picture with its top-left corner at (x, y). `pixels` holds
    /// height rows of width × 3 bytes rounded up to a multiple of 4; `scale` of them, across and down, go
    /// on each coordinate.
    void SetDIBitsToDevice(int x, int y, const BITMAPINFOHEADER& header, const std::uint8_t* pixels,
                           int scale = 1);

  protected:
    explicit CDC(std::unique_ptr<Target> target);
    std::unique_ptr<Target> target_;
};

}  // namespace platform
