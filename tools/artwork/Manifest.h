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
    rgb,   ///< 24 bits, no alpha
    rgba,  ///< 32 bits with alpha
    mono,  ///< 1 bit, black and white
};

/// One picture to draw.
struct Picture {
    QString output;  ///< relative to the output folder; its suffix chooses PNG, BMP or dib, which is a BMP
                     ///< without its file header
    QString source;  ///< SVG file, relative to the manifest
    QSize size;      ///< pixels, 1 … 4096 each way
    PixelFormat format = PixelFormat::rgb;
    QString colours;                ///< colour set laid over "base"; empty for none
    QString fine;                   ///< source of the picture with twice the pixels; empty for the same
    bool once = false;              ///< true when there is no picture with twice the pixels
    std::optional<QPoint> hotSpot;  ///< of a cursor; kept in the PNG as the text "HotSpot"
};

/// The picture with twice the pixels across and down. Its file NAME-2x lies beside the usual one.
Picture sharper(const Picture& picture);

/// Colour set name → colour name → SVG paint ("#3a7aa0", "none").
using Palette = QMap<QString, QMap<QString, QString>>;

/// The list of pictures, the folder of its file, and the colour sets.
struct Manifest {
    QString folder;
    Palette palette;
    std::vector<Picture> pictures;
};

/// Reads `manifest.json` and the palette file it names.
platform::Result<Manifest> readManifest(const QString& path);

}  // namespace artwork
