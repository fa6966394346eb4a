#pragma once

#include <QMap>
#include <QPoint>
#include <QSize>
#include <QString>
#include <QStringList>
#include <optional>
#include <vector>

#include "platform/base/Result.h"

namespace artwork {

/// How the pixels of a picture are stored.
enum class PixelFormat {
    Rgb,   ///< 24 bits, no alpha
    Rgba,  ///< 32 bits with alpha
    Mono,  ///< 1 bit, black and white
};

/// One picture to draw.
struct Picture {
    QString output;  ///< relative to the output folder; the suffix chooses PNG, BMP, or a BMP without its
                     ///< file header (dib)
    QString source;  ///< SVG file, relative to the manifest
    QSize size;      ///< pixels, 1 … 4096 each way
    PixelFormat format = PixelFormat::Rgb;
    QString colours;                ///< colour set laid over "base"; empty for none
    QString fine;                   ///< source of the second drawing; empty for the same
    bool once = false;              ///< not drawn a second time with twice the pixels
    std::optional<QPoint> hotSpot;  ///< of a cursor; kept in the PNG as the text "HotSpot"
};

/// The picture with twice the pixels across and down, in the file NAME-2x beside its own.
Picture sharper(const Picture& picture);

/// Colour set name → colour name → SVG paint ("#3a7aa0", "none").
using Palette = QMap<QString, QMap<QString, QString>>;

/// The list of pictures, the folder it lies in, and the colours it names.
struct Manifest {
    QString folder;
    Palette palette;
    std::vector<Picture> pictures;
};

/// Reads `manifest.json` and the palette file it names.
platform::Result<Manifest> readManifest(const QString& path);

}  // namespace artwork
