#pragma once

#include <memory>

#include "platform/base/Geometry.h"
#include "platform/drawing/Bitmap.h"

namespace platform {

/// What areas are filled with.
class CBrush {
  public:
    static CBrush Solid(COLORREF colour);
    /// Repeats the bitmap from the origin of the target.
    static CBrush Pattern(const CBitmap& bitmap);

  private:
    friend class CDC;
    COLORREF colour_ = 0;
    std::shared_ptr<QImage> pattern_;
};

}  // namespace platform
