#include "tools/artwork/PictureWriter.h"

#include <QBuffer>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QImage>
#include <QImageWriter>
#include <QPainter>
#include <QSvgRenderer>

#include "tools/artwork/Failure.h"

namespace artwork {
namespace {

QImage draw(QSvgRenderer& renderer, const Picture& picture) {
    QImage image(picture.size, QImage::Format_ARGB32_Premultiplied);
    image.fill(picture.format == PixelFormat::rgba ? Qt::transparent : Qt::black);
    QPainter painter(&image);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing |
                           QPainter::SmoothPixmapTransform);
    renderer.render(&painter, QRectF(QPointF(0, 0), QSizeF(picture.size)));
    painter.end();
    return image;
}

QImage stored(const QImage& image, PixelFormat format) {
    switch (format) {
        case PixelFormat::rgb:
            return image.convertToFormat(QImage::Format_RGB888);
        case PixelFormat::rgba:
            return image.convertToFormat(QImage::Format_ARGB32);
        case PixelFormat::mono:
            return image.convertToFormat(QImage::Format_Mono, Qt::ThresholdDither);
    }
    return image;
}

/// Bytes at the beginning of a BMP file that a bitmap resource lacks.
constexpr qsizetype fileHeaderSize = 14;

Result<void> writeResource(const QString& path, const QImage& image) {
    QBuffer bitmap;
    QImageWriter writer(&bitmap, "BMP");
    if (!bitmap.open(QIODevice::WriteOnly) || !writer.write(image))
        return failureOf(path, writer.errorString());
    QFile file(path);
    const QByteArray stored = bitmap.data().mid(fileHeaderSize);
    if (!file.open(QIODevice::WriteOnly) || file.write(stored) != stored.size())
        return failureOf(path, file.errorString());
    return {};
}

Result<void> writeImage(const QString& path, const QImage& image) {
    if (path.endsWith(".dib")) return writeResource(path, image);
    QImageWriter writer(path);
    if (!writer.write(image)) return failureOf(path, writer.errorString());
    return {};
}

}  // namespace

Result<void> writePicture(const Picture& picture, const QByteArray& svg, const QString& folder) {
    QSvgRenderer renderer;
    if (!renderer.load(svg)) return failureOf(picture.source, QStringLiteral("cannot be drawn as SVG Tiny"));
    if (!renderer.viewBoxF().isValid()) return failureOf(picture.source, QStringLiteral("no viewBox"));

    QImage image = stored(draw(renderer, picture), picture.format);
    if (picture.hotSpot)
        image.setText("HotSpot", QStringLiteral("%1 %2").arg(picture.hotSpot->x()).arg(picture.hotSpot->y()));

    const QString path = folder + "/" + picture.output;
    if (!QDir().mkpath(QFileInfo(path).absolutePath()))
        return failureOf(path, QStringLiteral("its folder cannot be made"));
    return writeImage(path, image);
}

}  // namespace artwork
