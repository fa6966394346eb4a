#include "platform/drawing/BitmapResource.h"

#include <QResource>

#include "platform/drawing/Artwork.h"

namespace platform {

std::optional<BitmapResource> FindBitmapResource(UINT id) {
    const ArtworkFile artwork = artworkFile(QStringLiteral(":/bitmap/%1").arg(id), QStringLiteral(".dib"));
    const QResource file(artwork.name);
    if (!file.isValid()) return std::nullopt;
    const auto bytes = std::make_shared<const QByteArray>(file.uncompressedData());
    return BitmapResource{std::as_bytes(std::span(*bytes)), bytes, artwork.scale};
}

}  // namespace platform
