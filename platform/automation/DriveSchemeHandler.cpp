#include "platform/automation/DriveSchemeHandler.h"

#include <QBuffer>
#include <QFile>
#include <QMap>
#include <QUrl>
#include <QWebEngineUrlRequestJob>
#include <memory>

#include "platform/automation/DosUrl.h"
#include "platform/automation/FileType.h"
#include "platform/automation/PluginTypes.h"
#include "platform/machine/Machine.h"
#include "platform/text/CodePage1253.h"

namespace platform {

namespace {

constexpr qint64 headLength = 1024;

/// Hands the opened device over to the request, which reads from it until it ends.
void reply(QWebEngineUrlRequestJob* job, const QByteArray& type, std::unique_ptr<QIODevice> device) {
    QIODevice* const given = device.release();
    QObject::connect(job, &QObject::destroyed, given, &QObject::deleteLater);
    job->reply(type, given);
}

std::unique_ptr<QIODevice> openForReading(std::unique_ptr<QIODevice> device) {
    return device->open(QIODevice::ReadOnly) ? std::move(device) : nullptr;
}

std::unique_ptr<QIODevice> openFile(const std::string& dosPath) {
    if (!hasMachine() || machine().files().isFolder(dosPath)) return nullptr;
    const auto native = machine().files().nativePath(dosPath);
    if (!native) return nullptr;
    return openForReading(std::make_unique<QFile>(QString::fromStdString(native->string())));
}

void replyMissingPage(QWebEngineUrlRequestJob* job, const std::string& dosPath) {
    static constexpr auto page = QLatin1StringView(
        "<!DOCTYPE html><html lang=\"el\"><head><title>%1</title><style>body{margin:24px;color:#1c2733;"
        "background:#fff;font:16px/1.5 sans-serif}p{color:#526070;overflow-wrap:anywhere}</style></head>"
        "<body><h1 style=\"font-size:20px\">%1</h1><p>%2</p></body></html>");
    auto buffer = std::make_unique<QBuffer>();
    buffer->setData(QString(page)
                        .arg(QStringLiteral("Η σελίδα δεν βρέθηκε"),
                             QString::fromStdString(toUtf8(dosPath)).toHtmlEscaped())
                        .toUtf8());
    reply(job, "text/html;charset=utf-8", openForReading(std::move(buffer)));
}

/// The file's media type. Pages are in the machine's code page unless they say otherwise.
QByteArray contentType(const std::string& dosPath, QIODevice& file) {
    const std::string_view type = mediaTypeOf(dosPath);
    QByteArray result(type.data(), static_cast<qsizetype>(type.size()));
    const bool isText = type.starts_with("text/");
    if (isText && !declaresCharset(file.peek(headLength).toStdString())) result += ";charset=windows-1253";
    return result;
}

bool isFrame(QWebEngineUrlRequestJob& job) {
    return job.requestHeaders().value(DriveSchemeHandler::frameHeader) == "1";
}

}  // namespace

void DriveSchemeHandler::requestStarted(QWebEngineUrlRequestJob* job) {
    const QUrl url = job->requestUrl();
    if (normalisedUrl(url) != url) {
        job->redirect(normalisedUrl(url));
        return;
    }
    const auto path = dosPathOfUrl(url);
    auto file = path ? openFile(*path) : nullptr;
    const bool frame = isFrame(*job);
    if (!file && frame) {
        replyMissingPage(job, path.value_or(addressOfUrl(url)));
    } else if (!file) {
        job->fail(QWebEngineUrlRequestJob::UrlNotFound);
    } else if (const std::string* viewer = PluginTypes::instance().pageFor(*path); viewer && frame) {
        auto page = openForReading(std::make_unique<QFile>(QString::fromStdString(*viewer)));
        if (page) {
            reply(job, "text/html;charset=utf-8", std::move(page));
        } else {
            job->fail(QWebEngineUrlRequestJob::RequestFailed);
        }
    } else {
        const QByteArray type = contentType(*path, *file);
        reply(job, type, std::move(file));
    }
}

}  // namespace platform
