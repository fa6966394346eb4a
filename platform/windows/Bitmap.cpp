#include <QImage>

#include "platform/windows/DC.h"

namespace platform {

bool CBitmap::LoadBitmap(UINT id) {
    // The format is named, since asking for it loads every picture plug-in of the desktop.
    const QImage image(QStringLiteral(":/bitmap/%1.png").arg(id), "PNG");
    if (image.isNull()) return false;
    image_ = std::make_shared<QImage>(image.convertToFormat(QImage::Format_RGB32));
    return true;
}

CBitmap CBitmap::ResizedTo(int width, int height) const {
    CBitmap resized;
    if (!image_) return resized;
    const QImage scaled =
        image_->size() == QSize(width, height)
            ? *image_
            : image_->scaled(width, height, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    resized.image_ = std::make_shared<QImage>(scaled);
    return resized;
}

int CBitmap::Width() const { return image_ ? image_->width() : 0; }

int CBitmap::Height() const { return image_ ? image_->height() : 0; }

CBrush CBrush::solid(COLORREF colour) {
    CBrush brush;
    brush.colour_ = colour;
    return brush;
}

CBrush CBrush::pattern(const CBitmap& bitmap) {
    CBrush brush;
    brush.pattern_ = bitmap.image_;
    return brush;
}

}  // namespace platform
