#pragma once

#include <QByteArray>
#include <QString>

#include "tools/artwork/Manifest.h"

namespace artwork {

/// Draws the SVG document `svg` at the picture's size and writes it into the folder `folder`.
platform::Result<void> writePicture(const Picture& picture, const QByteArray& svg, const QString& folder);

}  // namespace artwork
