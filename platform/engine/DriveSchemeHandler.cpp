#include "platform/engine/DriveSchemeHandler.h"

#include <QBuffer>
#include <QFile>
#include <QLoggingCategory>
#include <QMap>
#include <QUrl>
#include <QWebEngineUrlRequestJob>
#include <memory>

#include "platform/browser/BrowserPolicy.h"
#include "platform/browser/DosUrl.h"
#include "platform/browser/FolderAddresses.h"
#include "platform/machine/Machine.h"
#include "platform/plugins/FileType.h"
#include "platform/plugins/FrameAnswer.h"
#include "platform/text/CodePage1253.h"

Q_LOGGING_CATEGORY(filesLog, "platform.browser.files")

namespace platform {

namespace {

/// The program prepares no page that is longer.
constexpr qint64 maxTextLength = qint64{64} << 20;

/// Hands the opened device over to the request, which reads from it until it ends.
void reply(QWebEngineUrlRequestJob* job, const QByteArray& type, std::unique_ptr<QIODevice> device) {
    QIODevice* const given = device.release();
    QObject::connect(job, &QObject::destroyed, given, &QObject::deleteLater);
    job->reply(type, given);
}

/// The file that the policy allows; a closed handle when there is none.
FileHandle openAllowed(const std::string& canonicalPath) {
    if (!hasMachine() || !BrowserPolicy::instance().allowsFile(canonicalPath)) return {};
    return machine().files().openForReading(canonicalPath);
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

bool isFrame(QWebEngineUrlRequestJob& job) {
    return job.requestHeaders().value(DriveSchemeHandler::frameHeader) == "1";
}

/// Pages and plain texts are in the machine's code page unless they say otherwise. Scripts and style sheets
/// hardly ever say, and scripts that are modules are always in UTF-8.
bool isInCodePage(const QByteArray& type, const std::string& text) {
    return type == "text/javascript" || type == "text/css" ? !QUtf8StringView(text).isValidUtf8()
                                                           : isInCodePage1253(text);
}

/// A text file as the engine is to read it.
struct Text {
    QByteArray type;
    std::unique_ptr<QIODevice> device;
};

/// Gives it the URLs of FolderAddresses.h, and brings it from the code page into UTF-8, since the engine
/// loads the tables of all its encodings for that one.
Text readText(QByteArray type, QIODevice& file) {
    std::string text = file.read(maxTextLength).toStdString();
    const bool isConverted = isInCodePage(type, text);
    if (type == "text/html" || type == "text/css") {
        text = folderUrls(std::move(text), BrowserPolicy::instance().allowedFolders());
    }
    if (isConverted) {
        text = toUtf8(text);
        type += ";charset=utf-8";
    }
    auto buffer = std::make_unique<QBuffer>();
    buffer->setData(QByteArray::fromStdString(text));
    return {std::move(type), openForReading(std::move(buffer))};
}

/// False, with the request unanswered, when the file cannot be read.
bool replyFile(QWebEngineUrlRequestJob* job, const std::string& dosPath, const FileHandle& handle) {
    std::unique_ptr<QIODevice> file = deviceOf(handle);
    if (!file) return false;
    const std::string_view name = mediaTypeOf(dosPath);
    Text answer{{name.data(), static_cast<qsizetype>(name.size())}, std::move(file)};
    if (name.starts_with("text/")) answer = readText(answer.type, *answer.device);
    reply(job, answer.type, std::move(answer.device));
    return true;
}

}  // namespace

void DriveSchemeHandler::logMissing(const QUrl& url) {
    constexpr int maxMissing = 200;
    constexpr std::size_t maxAddress = 200;
    if (logged_ >= maxMissing) return;
    ++logged_;
    qCInfo(filesLog, "Not found: %s", toUtf8(addressOfUrl(url).substr(0, maxAddress)).c_str());
}

void DriveSchemeHandler::requestStarted(QWebEngineUrlRequestJob* job) {
    const QUrl url = job->requestUrl();
    if (normalisedUrl(url) != url) {
        job->redirect(normalisedUrl(url));
        return;
    }
    const auto path = dosPathOfUrl(url);
    FileHandle file = path ? openAllowed(*path) : FileHandle();
    const bool frame = isFrame(*job);
    if (auto special = path ? frameAnswer(url, *path, file, frame) : std::nullopt) {
        if (special->device) {
            reply(job, special->type, std::move(special->device));
        } else {
            logMissing(url);
            job->fail(QWebEngineUrlRequestJob::UrlNotFound);
        }
    } else if (path && file && replyFile(job, *path, file)) {
        return;
    } else if (frame) {
        logMissing(url);
        replyMissingPage(job, path.value_or(addressOfUrl(url)));
    } else {
        logMissing(url);
        job->fail(QWebEngineUrlRequestJob::UrlNotFound);
    }
}

}  // namespace platform
