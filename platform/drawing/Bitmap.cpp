#include "platform/drawing/Bitmap.h"

#include <QImage>

#include "platform/drawing/Artwork.h"

namespace platform {

namespace {

QImage::Format formatOf(std::uint16_t bits) {
    if (bits == 24) return QImage::Format_BGR888;
    return bits == 8 ? QImage::Format_Indexed8 : QImage::Format_Invalid;
}

/// Bytes of a row, a multiple of 4.
std::uint64_t strideOf(const BITMAPINFOHEADER& header) {
    return (static_cast<std::uint64_t>(header.biWidth) * header.biBitCount + 31) / 32 * 4;
}

bool isWhole(const BITMAPINFOHEADER& header, std::size_t bytes) {
    return header.biWidth > 0 && header.biHeight > 0 && header.biCompression == 0 &&
           static_cast<std::uint64_t>(header.biHeight) <= bytes / strideOf(header);
}

}  // namespace

bool CBitmap::LoadBitmap(UINT id) {
    const QImage image = artworkImage(QStringLiteral(":/bitmap/%1").arg(id));
    if (image.isNull()) return false;
    *this = FromImage(image);
    return true;
}

bool CBitmap::CreateDIBitmap(const BITMAPINFOHEADER& header, std::span<const PALETTEENTRY> colours,
                             std::span<const std::byte> pixels, int scale) {
    const QImage::Format format = formatOf(header.biBitCount);
    if (format == QImage::Format_Invalid || !isWhole(header, pixels.size())) return false;
    QImage bottomUp(reinterpret_cast<const uchar*>(pixels.data()), header.biWidth, header.biHeight,
                    static_cast<qsizetype>(strideOf(header)), format);
    if (format == QImage::Format_Indexed8) {
        QList<QRgb> table(256, qRgb(0, 0, 0));
        for (std::size_t i = 0; i < colours.size() && i < 256; ++i) {
            table[static_cast<qsizetype>(i)] = qRgb(colours[i].peRed, colours[i].peGreen, colours[i].peBlue);
        }
        bottomUp.setColorTable(table);
    }
    image_ = std::make_shared<QImage>(bottomUp.convertToFormat(QImage::Format_RGB32).mirrored());
    image_->setDevicePixelRatio(scale);
    return true;
}

bool CBitmap::LoadFile(std::string_view bytes) {
    const QImage image =
        QImage::fromData(reinterpret_cast<const uchar*>(bytes.data()), static_cast<int>(bytes.size()));
    if (image.isNull()) return false;
    *this = FromImage(image);
    return true;
}

CBitmap CBitmap::FromImage(const QImage& image) {
    CBitmap bitmap;
    bitmap.image_ = std::make_shared<QImage>(image.convertToFormat(QImage::Format_RGB32));
    return bitmap;
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

}  // namespace platform
