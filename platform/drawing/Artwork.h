#pragma once

#include <QImage>
#include <QString>

/// The program's pictures. Each has a second version with twice the pixels for sharp screens; the name of
/// that file has "-2x" before the suffix.
namespace platform {

/// A file with one version of a picture.
struct ArtworkFile {
    QString name;
    int scale = 1;  ///< pixels of the file per logical pixel, across and down
};

/// The file to use on this screen: the sharp version if the screen has more than one physical pixel per
/// logical pixel and there is such a file.
ArtworkFile artworkFile(const QString& name, const QString& suffix);

/// A PNG resource; null when there is none or it is damaged. Decoded by libpng itself: the readers of Qt load
/// all picture plug-ins of the desktop first, which would take a thirtieth of the program's start.
QImage pngImage(const QString& resource);

/// A PNG resource in the version for this screen, with its device pixel ratio set; null when there is none.
QImage artworkImage(const QString& name);

}  // namespace platform
