#include "platform/drawing/Brush.h"

namespace platform {

CBrush CBrush::Solid(COLORREF colour) {
    CBrush brush;
    brush.colour_ = colour;
    return brush;
}

CBrush CBrush::Pattern(const CBitmap& bitmap) {
    CBrush brush;
    brush.pattern_ = bitmap.image_;
    return brush;
}

}  // namespace platform
