#pragma once

#include <cstdint>
#include <memory>

#include "platform/base/Geometry.h"
#include "platform/drawing/Bitmap.h"
#include "platform/drawing/Brush.h"

namespace platform {

/// Draws on the picture of a window or on a bitmap, at any time. A window keeps what is drawn on it.
class CDC {
  public:
    class Target;

    /// A context with nothing to draw on.
    CDC();
    CDC(CDC&&) noexcept;
    CDC& operator=(CDC&&) noexcept;
    virtual ~CDC();

    /// A context in memory; a bitmap must be selected into it.
    static CDC CreateCompatibleDC(const CDC& like);
    /// Selects the bitmap that this memory context draws on and copies from.
    void SelectObject(const CBitmap& bitmap);

    void BitBlt(int x, int y, int width, int height, const CDC& source, int sourceX, int sourceY);
    void StretchBlt(int x, int y, int width, int height, const CDC& source, int sourceX, int sourceY,
                    int sourceWidth, int sourceHeight);
    void FillSolidRect(const CRect& rect, COLORREF colour);
    void FillRect(const CRect& rect, const CBrush& brush);
    /// Draws a complete picture with 24 bits per pixel, whose rows come from bottom to top, with its top-left
    /// corner at (x, y). Each row in `pixels` takes width × 3 bytes, rounded up to a multiple of 4. The
    /// picture has `scale` pixels per logical pixel, across and down.
    void SetDIBitsToDevice(int x, int y, const BITMAPINFOHEADER& header, const std::uint8_t* pixels,
                           int scale = 1);

  protected:
    explicit CDC(std::unique_ptr<Target> target);
    std::unique_ptr<Target> target_;
};

}  // namespace platform
