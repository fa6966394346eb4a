#include "tools/artwork/Manifest.h"

#include <QFile>
#include <QFileInfo>
#include <nlohmann/json.hpp>
#include <string>

namespace artwork {
namespace {

using Json = nlohmann::json;

constexpr int kLargestSide = 4096;

std::variant<Json, Failure> readJson(const QString& path) {
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) return Failure{path, file.errorString()};
    const std::string text = file.readAll().toStdString();
    Json json = Json::parse(text, nullptr, false);
    if (!json.is_object()) return Failure{path, QStringLiteral("not a JSON object")};
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
    if (name == "rgb") return PixelFormat::Rgb;
    if (name == "rgba") return PixelFormat::Rgba;
    if (name == "mono") return PixelFormat::Mono;
    return std::nullopt;
}

std::variant<Palette, Failure> readPalette(const QString& path) {
    auto read = readJson(path);
    if (const auto* failure = std::get_if<Failure>(&read)) return *failure;
    Palette palette;
    for (const auto& [set, colours] : std::get<Json>(read).items()) {
        auto& target = palette[QString::fromStdString(set)];
        for (const auto& [name, paint] : colours.items()) {
            if (!paint.is_string())
                return Failure{path, QStringLiteral("%1.%2 is not a text")
                                         .arg(QString::fromStdString(set), QString::fromStdString(name))};
            target[QString::fromStdString(name)] = QString::fromStdString(paint.get<std::string>());
        }
    }
    return palette;
}

std::variant<Picture, QString> readPicture(const Json& entry, const Palette& palette) {
    if (!entry.is_object()) return QStringLiteral("an entry is not an object");
    Picture picture;
    picture.output = textOf(entry, "output");
    picture.source = textOf(entry, "source");
    picture.colours = textOf(entry, "colours");
    picture.hotSpot = pairOf(entry, "hotSpot");
    picture.fine = textOf(entry, "fine");
    picture.once = entry.value("once", Json(false)) == Json(true);
    if (picture.output.isEmpty() || picture.source.isEmpty())
        return QStringLiteral("an entry lacks \"output\" or \"source\"");
    const auto size = pairOf(entry, "size");
    if (!size || size->x() < 1 || size->y() < 1 || size->x() > kLargestSide || size->y() > kLargestSide)
        return picture.output + ": \"size\" must be two numbers from 1 to " + QString::number(kLargestSide);
    picture.size = QSize(size->x(), size->y());
    const auto format = formatOf(textOf(entry, "format"));
    if (!format) return picture.output + ": \"format\" must be rgb, rgba or mono";
    picture.format = *format;
    if (!picture.colours.isEmpty() && !palette.contains(picture.colours))
        return picture.output + ": no colour set \"" + picture.colours + "\"";
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

std::variant<Manifest, Failure> readManifest(const QString& path) {
    auto read = readJson(path);
    if (const auto* failure = std::get_if<Failure>(&read)) return *failure;
    const Json& json = std::get<Json>(read);

    Manifest manifest;
    manifest.folder = QFileInfo(path).absolutePath();
    auto palette = readPalette(manifest.folder + "/" + textOf(json, "palette"));
    if (const auto* failure = std::get_if<Failure>(&palette)) return *failure;
    manifest.palette = std::get<Palette>(std::move(palette));

    const auto pictures = json.find("pictures");
    if (pictures == json.end() || !pictures->is_array())
        return Failure{path, QStringLiteral("no list \"pictures\"")};
    for (const Json& entry : *pictures) {
        auto picture = readPicture(entry, manifest.palette);
        if (const auto* reason = std::get_if<QString>(&picture)) return Failure{path, *reason};
        manifest.pictures.push_back(std::get<Picture>(std::move(picture)));
    }
    return manifest;
}

}  // namespace artwork
