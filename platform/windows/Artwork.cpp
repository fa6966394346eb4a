#include "platform/windows/Artwork.h"

#include <QFile>
#include <QGuiApplication>

#include "platform/windows/DC.h"

namespace platform {

int PictureScale() { return qApp && qGuiApp->devicePixelRatio() > 1 ? 2 : 1; }

ArtworkFile artworkFile(const QString& name, const QString& suffix) {
    if (PictureScale() > 1) {
        const QString sharp = name + QStringLiteral("-2x") + suffix;
        if (QFile::exists(sharp)) return {sharp, PictureScale()};
    }
    return {name + suffix, 1};
}

QImage artworkImage(const QString& name) {
    const ArtworkFile file = artworkFile(name, QStringLiteral(".png"));
    // The format is named, since asking for it loads every picture plug-in of the desktop.
    QImage image(file.name, "PNG");
    image.setDevicePixelRatio(file.scale);
    return image;
}

}  // namespace platform
