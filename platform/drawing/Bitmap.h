#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <span>
#include <string_view>

#include "platform/base/Messages.h"

class QImage;

namespace platform {

/// A colour of a palette.
struct PALETTEENTRY {
    std::uint8_t peRed = 0;
    std::uint8_t peGreen = 0;
    std::uint8_t peBlue = 0;
    std::uint8_t peFlags = 0;
    friend bool operator==(const PALETTEENTRY&, const PALETTEENTRY&) = default;
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

/// How many pixels per logical pixel, across and down, a picture for this screen should have: 1 or 2.
int PictureScale();

/// A bitmap resource of the program, or a bitmap to draw on.
class CBitmap {
  public:
    /// Loads bitmap resource `id`; false when there is none.
    bool LoadBitmap(UINT id);
    /// Makes the bitmap from a complete picture with 24 bits per pixel, or with 8 and a table of `colours`,
    /// whose rows come from bottom to top. The picture has `scale` pixels per logical pixel, across and down.
    /// False for any other picture; the bitmap is then unchanged.
    bool CreateDIBitmap(const BITMAPINFOHEADER& header, std::span<const PALETTEENTRY> colours,
                        std::span<const std::byte> pixels, int scale = 1);
    /// Loads the bytes of an image file; false when they cannot be read.
    bool LoadFile(std::string_view bytes);
    /// For use inside the platform.
    static CBitmap FromImage(const QImage& image);
    /// A copy of the bitmap scaled to a size; not loaded if this bitmap is not.
    CBitmap ResizedTo(int width, int height) const;
    /// The pixels of a loaded bitmap; for use inside the platform.
    const QImage& Image() const { return *image_; }
    bool Loaded() const { return image_ != nullptr; }
    /// Size in logical pixels.
    int Width() const;
    int Height() const;

  private:
    friend class CDC;
    friend class CBrush;
    std::shared_ptr<QImage> image_;
};

}  // namespace platform
