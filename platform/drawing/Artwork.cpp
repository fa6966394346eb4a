#include "platform/drawing/Artwork.h"

#include <png.h>

#include <QFile>
#include <QGuiApplication>
#include <QResource>

#include "platform/drawing/Bitmap.h"

namespace platform {

int PictureScale() { return qApp && qGuiApp->devicePixelRatio() > 1 ? 2 : 1; }

ArtworkFile artworkFile(const QString& name, const QString& suffix) {
    if (PictureScale() > 1) {
        const QString sharp = name + QStringLiteral("-2x") + suffix;
        if (QFile::exists(sharp)) return {sharp, PictureScale()};
    }
    return {name + suffix, 1};
}

QImage pngImage(const QString& resource) {
    const QByteArray bytes = QResource(resource).uncompressedData();
    png_image source{};
    source.version = PNG_IMAGE_VERSION;
    if (!png_image_begin_read_from_memory(&source, bytes.constData(), static_cast<std::size_t>(bytes.size())))
        return {};
    const bool transparent = source.format & PNG_FORMAT_FLAG_ALPHA;
    // The byte order of colours in a QImage.
    source.format = QSysInfo::ByteOrder == QSysInfo::LittleEndian ? PNG_FORMAT_BGRA : PNG_FORMAT_ARGB;
    QImage image(static_cast<int>(source.width), static_cast<int>(source.height),
                 transparent ? QImage::Format_ARGB32 : QImage::Format_RGB32);
    const bool read =
        !image.isNull() && png_image_finish_read(&source, nullptr, image.bits(),
                                                 static_cast<png_int_32>(image.bytesPerLine()), nullptr);
    png_image_free(&source);
    return read ? image : QImage();
}

QImage artworkImage(const QString& name) {
    const ArtworkFile file = artworkFile(name, QStringLiteral(".png"));
    QImage image = pngImage(file.name);
    image.setDevicePixelRatio(file.scale);
    return image;
}

}  // namespace platform
