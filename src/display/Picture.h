#pragma once

#include <cstdint>
#include <memory>
#include <string_view>

#include "platform/drawing/DC.h"

namespace platform {
class FileSystem;
}

namespace kalyxo {

/// How loading a picture ended.
enum class PictureResult { loaded, missing, outOfMemory, fileError };

/// A 24-bit bottom-up bitmap from a BMP file, ready to be drawn as it is.
class Picture {
  public:
    /// Loads a BMP file. Pictures of another depth, compressed, top-down, or with fewer bytes than their
    /// header says are file errors. A missing file leaves the picture as it was; any other failure leaves it
    /// without pixels. On screens that show it, a file NAME-2x.bmp beside NAME.bmp that has twice as many
    /// pixels across and down takes its place.
    PictureResult LoadPicture(const platform::FileSystem& files, std::string_view path);

    bool Loaded() const { return m_pixels != nullptr; }
    /// Size in coordinates; 0 × 0 while nothing is loaded.
    platform::CSize Size() const;

    /// Draws the whole picture with its top-left corner at (x, y); nothing while it has no pixels.
    void DrawPicture(platform::CDC& dc, int x, int y) const;

  private:
    PictureResult load(const platform::FileSystem& files, std::string_view path);
    void takeSharper(const platform::FileSystem& files, std::string_view path);

    int m_scale = 1;
    platform::BITMAPINFOHEADER m_header;
    std::unique_ptr<std::uint8_t[]> m_pixels;
};

/// Length of a row in bytes: three a pixel, rounded up to a multiple of 4.
constexpr std::uint64_t PictureStride(std::uint32_t width) { return (std::uint64_t{width} * 3 + 3) / 4 * 4; }

}  // namespace kalyxo
