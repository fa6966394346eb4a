#pragma once

#include <QImage>

namespace platform {

/// The picture that a window keeps of itself, in logical coordinates of its client area.
class Surface {
  public:
    /// Gives the picture another size or device pixel ratio. The content stays at the top-left corner, what
    /// is new is white. Returns whether anything changed.
    bool resize(QSize logical, qreal ratio);

    /// Null while the client area is empty.
    QImage& image() { return image_; }
    const QImage& image() const { return image_; }

  private:
    QImage image_;
};

}  // namespace platform
