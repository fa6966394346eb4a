#include "platform/plugins/FrameAnswer.h"

#include <fcntl.h>
#include <unistd.h>

#include <QFile>
#include <QUrl>
#include <QUrlQuery>
#include <algorithm>
#include <cmath>

#include "platform/components/ComponentLibrary.h"
#include "platform/plugins/FileType.h"
#include "platform/plugins/PluginTypes.h"
#include "platform/plugins/VideoConversion.h"

namespace platform {

namespace {

FrameAnswer resource(const QString& path) {
    const std::string_view type = mediaTypeOf(path.toStdString());
    return {QByteArray(type.data(), static_cast<qsizetype>(type.size())) + ";charset=utf-8",
            openForReading(std::make_unique<QFile>(path))};
}

/// A file of the folder in which the viewer page lies.
FrameAnswer besideViewer(const std::string& viewer, const QString& name) {
    const bool isPlain =
        std::ranges::all_of(name, [](QChar c) { return c.isLetterOrNumber() || c == u'.' || c == u'-'; });
    if (!isPlain) return {};
    const QString page = QString::fromStdString(viewer);
    return resource(page.first(page.lastIndexOf(u'/') + 1) + name);
}

FrameAnswer componentPart(const QString& classId) {
    const ComponentModule* module = loadRegisteredClass(classId.toStdString());
    if (module == nullptr || module->pagePart.document.empty()) return {};
    return resource(QString::fromUtf8(module->pagePart.document.data(),
                                      static_cast<qsizetype>(module->pagePart.document.size())));
}

}  // namespace

std::unique_ptr<QIODevice> openForReading(std::unique_ptr<QIODevice> device) {
    return device->open(QIODevice::ReadOnly) ? std::move(device) : nullptr;
}

std::unique_ptr<QFile> deviceOf(const FileHandle& file) {
    const int descriptor = ::fcntl(file.descriptor(), F_DUPFD_CLOEXEC, 0);
    if (descriptor < 0) return nullptr;
    auto device = std::make_unique<QFile>();
    if (!device->open(descriptor, QIODevice::ReadOnly, QFileDevice::AutoCloseHandle)) {
        ::close(descriptor);
        return nullptr;
    }
    // The engine would wait for ever for the end of a file whose length the host does not tell.
    return device->isSequential() ? nullptr : std::move(device);
}

std::optional<FrameAnswer> frameAnswer(const QUrl& url, const std::string& dosPath, const FileHandle& file,
                                       bool frame) {
    const QUrlQuery query(url);
    const auto value = [&](const char* name) { return query.queryItemValue(QLatin1StringView(name)); };
    const auto number = [&](const char* name) {
        const double given = value(name).toDouble();
        return std::isfinite(given) ? std::max(given, 0.0) : 0.0;
    };
    if (frame && query.hasQueryItem(QStringLiteral("component"))) return componentPart(value("component"));
    const std::string* viewer = PluginTypes::instance().pageFor(dosPath);
    if (viewer == nullptr) return std::nullopt;
    if (frame) return resource(QString::fromStdString(*viewer));
    if (query.hasQueryItem(QStringLiteral("resource"))) return besideViewer(*viewer, value("resource"));
    if (!file) return std::nullopt;
    if (query.hasQueryItem(QStringLiteral("describe"))) {
        return FrameAnswer{"application/json", videoDescription(deviceOf(file))};
    }
    if (query.hasQueryItem(QStringLiteral("from"))) {
        return FrameAnswer{"video/webm", convertedVideo(deviceOf(file), number("from"), number("length"))};
    }
    return std::nullopt;
}

}  // namespace platform
