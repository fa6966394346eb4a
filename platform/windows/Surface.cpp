#include "platform/windows/Surface.h"

#include <QPainter>
#include <QtMath>
#include <utility>

namespace platform {

bool Surface::resize(QSize logical, qreal ratio) {
    const QSize pixels(qCeil(logical.width() * ratio), qCeil(logical.height() * ratio));
    if (pixels.isEmpty() ? image_.isNull() : image_.size() == pixels && image_.devicePixelRatio() == ratio) {
        return false;
    }
    const QImage former = std::exchange(image_, QImage(pixels, QImage::Format_RGB32));
    if (image_.isNull()) return true;
    image_.setDevicePixelRatio(ratio);
    image_.fill(Qt::white);
    if (!former.isNull()) QPainter(&image_).drawImage(0, 0, former);
    return true;
}

}  // namespace platform
