#include <QImage>

#include "platform/drawing/Artwork.h"
#include "platform/drawing/DC.h"

namespace platform {

bool CBitmap::LoadBitmap(UINT id) {
    const QImage image = artworkImage(QStringLiteral(":/bitmap/%1").arg(id));
    if (image.isNull()) return false;
    image_ = std::make_shared<QImage>(image.convertToFormat(QImage::Format_RGB32));
    return true;
}

bool CBitmap::LoadFile(std::string_view bytes) {
    const QImage image =
        QImage::fromData(reinterpret_cast<const uchar*>(bytes.data()), static_cast<int>(bytes.size()));
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
    resized.image_->setDevicePixelRatio(1);
    return resized;
}

int CBitmap::Width() const { return image_ ? image_->deviceIndependentSize().toSize().width() : 0; }

int CBitmap::Height() const { return image_ ? image_->deviceIndependentSize().toSize().height() : 0; }

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
