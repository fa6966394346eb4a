#include "tools/artwork/Manifest.h"

#include <QFile>
#include <QFileInfo>
#include <nlohmann/json.hpp>
#include <string>

#include "tools/artwork/Failure.h"

namespace artwork {
namespace {

using Json = nlohmann::json;

constexpr int maxSide = 4096;

Result<Json> readJson(const QString& path) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) return failureOf(path, file.errorString());
    const std::string text = file.readAll().toStdString();
    Json json = Json::parse(text, nullptr, false);
    if (!json.is_object()) return failureOf(path, QStringLiteral("not a JSON object"));
    return json;
}

QString textOf(const Json& object, const char* key) {
    const auto found = object.find(key);
    if (found == object.end() || !found->is_string()) return {};
    return QString::fromStdString(found->get<std::string>());
}

std::optional<QPoint> pairOf(const Json& object, const char* key) {
    const auto found = object.find(key);
    if (found == object.end() || !found->is_array() || found->size() != 2) return std::nullopt;
    const Json& x = (*found)[0];
    const Json& y = (*found)[1];
    if (!x.is_number_integer() || !y.is_number_integer()) return std::nullopt;
    return QPoint(x.get<int>(), y.get<int>());
}

std::optional<PixelFormat> formatOf(const QString& name) {
    if (name == "rgb") return PixelFormat::rgb;
    if (name == "rgba") return PixelFormat::rgba;
    if (name == "mono") return PixelFormat::mono;
    return std::nullopt;
}

Result<Palette> readPalette(const QString& path) {
    auto read = readJson(path);
    if (!read) return read.failure();
    Palette palette;
    for (const auto& [set, colours] : read->items()) {
        auto& target = palette[QString::fromStdString(set)];
        for (const auto& [name, paint] : colours.items()) {
            if (!paint.is_string())
                return failureOf(path, QStringLiteral("%1.%2 is not a text")
                                           .arg(QString::fromStdString(set), QString::fromStdString(name)));
            target[QString::fromStdString(name)] = QString::fromStdString(paint.get<std::string>());
        }
    }
    return palette;
}

/// Reads an entry of the manifest `path`.
Result<Picture> readPicture(const Json& entry, const Palette& palette, const QString& path) {
    if (!entry.is_object()) return failureOf(path, QStringLiteral("an entry is not an object"));
    Picture picture;
    picture.output = textOf(entry, "output");
    picture.source = textOf(entry, "source");
    picture.colours = textOf(entry, "colours");
    picture.hotSpot = pairOf(entry, "hotSpot");
    picture.fine = textOf(entry, "fine");
    picture.once = entry.value("once", Json(false)) == Json(true);
    if (picture.output.isEmpty() || picture.source.isEmpty())
        return failureOf(path, QStringLiteral("an entry lacks \"output\" or \"source\""));
    const auto size = pairOf(entry, "size");
    if (!size || size->x() < 1 || size->y() < 1 || size->x() > maxSide || size->y() > maxSide)
        return failureOf(
            path, picture.output + ": \"size\" must be two numbers from 1 to " + QString::number(maxSide));
    picture.size = QSize(size->x(), size->y());
    const auto format = formatOf(textOf(entry, "format"));
    if (!format) return failureOf(path, picture.output + ": \"format\" must be rgb, rgba or mono");
    picture.format = *format;
    if (!picture.colours.isEmpty() && !palette.contains(picture.colours))
        return failureOf(path, picture.output + ": no colour set \"" + picture.colours + "\"");
    return picture;
}

}  // namespace

Picture sharper(const Picture& picture) {
    Picture twice = picture;
    twice.output.insert(twice.output.lastIndexOf('.'), QStringLiteral("-2x"));
    twice.size = picture.size * 2;
    if (!picture.fine.isEmpty()) twice.source = picture.fine;
    return twice;
}

Result<Manifest> readManifest(const QString& path) {
    auto read = readJson(path);
    if (!read) return read.failure();
    const Json& json = *read;

    Manifest manifest;
    manifest.folder = QFileInfo(path).absolutePath();
    auto palette = readPalette(manifest.folder + "/" + textOf(json, "palette"));
    if (!palette) return palette.failure();
    manifest.palette = *std::move(palette);

    const auto pictures = json.find("pictures");
    if (pictures == json.end() || !pictures->is_array())
        return failureOf(path, QStringLiteral("no list \"pictures\""));
    for (const Json& entry : *pictures) {
        auto picture = readPicture(entry, manifest.palette, path);
        if (!picture) return picture.failure();
        manifest.pictures.push_back(*std::move(picture));
    }
    return manifest;
}

}  // namespace artwork
