#pragma once

#include <QImage>

namespace platform {

/// The picture that a window keeps of its client area, in logical coordinates. Its memory is allocated when
/// it is first drawn on or shown: many windows change their size before that.
class Surface {
  public:
    /// Changes the size or the device pixel ratio. The content stays at the top-left corner, and new areas
    /// are white. Returns whether anything changed.
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
