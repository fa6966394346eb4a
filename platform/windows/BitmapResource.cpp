#include "platform/windows/BitmapResource.h"

#include <QFile>

#include "platform/windows/Artwork.h"

namespace platform {

std::optional<BitmapResource> FindBitmapResource(UINT id) {
    const ArtworkFile artwork = artworkFile(QStringLiteral(":/bitmap/%1").arg(id), QStringLiteral(".dib"));
    QFile file(artwork.name);
    if (!file.open(QIODevice::ReadOnly)) return std::nullopt;
    BitmapResource resource{std::vector<std::byte>(static_cast<std::size_t>(file.size())), artwork.scale};
    const qint64 size = file.read(reinterpret_cast<char*>(resource.bytes.data()), file.size());
    resource.bytes.resize(static_cast<std::size_t>(std::max<qint64>(size, 0)));
    return resource;
}

}  // namespace platform
