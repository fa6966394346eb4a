#pragma once

#include <QByteArray>
#include <QString>
#include <optional>

#include "tools/artwork/Failure.h"
#include "tools/artwork/Manifest.h"

namespace artwork {

/// Draws the SVG document `svg` at the picture's size and writes it into the folder `folder`.
std::optional<Failure> writePicture(const Picture& picture, const QByteArray& svg, const QString& folder);

}  // namespace artwork
