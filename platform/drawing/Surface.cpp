#include "platform/drawing/Surface.h"

#include <QPainter>
#include <QtMath>
#include <utility>

namespace platform {

bool Surface::resize(QSize logical, qreal ratio) {
    const QSize pixels(qCeil(logical.width() * ratio), qCeil(logical.height() * ratio));
    if (pixels.isEmpty() ? isNull() : pixels_ == pixels && ratio_ == ratio) return false;
    pixels_ = pixels;
    ratio_ = ratio;
    return true;
}

QImage& Surface::image() {
    if (isNull()) {
        image_ = QImage();
    } else if (image_.size() != pixels_ || image_.devicePixelRatio() != ratio_) {
        const QImage former = std::exchange(image_, QImage(pixels_, QImage::Format_RGB32));
        if (image_.isNull()) return image_;
        image_.setDevicePixelRatio(ratio_);
        image_.fill(Qt::white);
        if (!former.isNull()) QPainter(&image_).drawImage(0, 0, former);
    }
    return image_;
}

}  // namespace platform
