#pragma once

#include <QImage>
#include <QString>

/// The program's drawn pictures, of which there is a second one with twice the pixels for sharp screens: its
/// name has "-2x" before the suffix.
namespace platform {

struct ArtworkFile {
    QString name;
    int scale = 1;  ///< its pixels, across and down, to one logical pixel
};

/// The file to take for this screen: the sharper one where the screen shows more than one pixel for each
/// logical one, if there is such a file.
ArtworkFile artworkFile(const QString& name, const QString& suffix);

/// A PNG resource; null when there is none or it is damaged. Read without the desktop's picture plug-ins,
/// which Qt's own readers load all at the first picture: that alone would be a thirtieth of the program's
/// start.
QImage pngImage(const QString& resource);

/// A PNG resource in the size of its logical pixels; null when there is none.
QImage artworkImage(const QString& name);

}  // namespace platform
