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

/// A 24-bit bitmap from a BMP file.
class Picture {
  public:
    /// Loads a BMP file. It must have 24 bits a pixel, no compression, rows from the bottom up, and all bytes
    /// that its header promises. A missing file leaves the picture as it was; after any other failure it has
    /// no pixels. On a sharp screen a file NAME-2x.bmp with twice the pixels across and down is used instead
    /// of NAME.bmp.
    PictureResult LoadPicture(const platform::FileSystem& files, std::string_view path);

    bool Loaded() const { return m_pixels != nullptr; }
    /// The size in coordinates, 0 × 0 while nothing is loaded.
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

}  // namespace kalyxo
