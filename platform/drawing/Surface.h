#pragma once

#include <QImage>

namespace platform {

/// The picture that a window keeps of itself, in logical coordinates of its client area. It takes memory once
/// it is drawn on or shown: many a window gets its final size before that.
class Surface {
  public:
    /// Gives the picture another size or device pixel ratio. The content stays at the top-left corner, what
    /// is new is white. Returns whether anything changed.
    bool resize(QSize logical, qreal ratio);

    bool isNull() const { return pixels_.isEmpty(); }
    qreal ratio() const { return ratio_; }

    /// Null while the client area is empty.
    QImage& image();

  private:
    QImage image_;
    QSize pixels_;
    qreal ratio_ = 1;
};

}  // namespace platform
