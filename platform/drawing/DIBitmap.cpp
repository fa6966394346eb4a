#include <QImage>
#include <cstdint>

#include "platform/drawing/DC.h"

/// Bitmaps made of device-independent ones.
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

}  // namespace platform
