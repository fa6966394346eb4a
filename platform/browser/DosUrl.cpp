#include "platform/browser/DosUrl.h"

#include <QByteArray>
#include <QString>
#include <QUrl>
#include <algorithm>

#include "platform/files/DosPath.h"
#include "platform/text/CodePage1253.h"

namespace platform {

namespace {

/// Part of no name of a folder, for which the engine would otherwise take a host.
constexpr char driveHost[] = "drive.invalid";

bool isLetter(char c) { return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z'); }

bool isDosPath(std::string_view text) {
    return text.size() >= 2 && isLetter(text[0]) && text[1] == ':' &&
           (text.size() == 2 || text[2] == '\\' || text[2] == '/');
}

QUrl driveUrl(char letter, const QByteArray& escapedPath) {
    return QUrl::fromEncoded(QByteArray::fromStdString(driveUrlStart(letter)) + escapedPath,
                             QUrl::TolerantMode);
}

/// The path of a drive URL as it is written. A page's `d:\images\x.gif` is for the engine the path `/x.gif`
/// on the host `images`.
QByteArray escapedPathOf(const QUrl& url) {
    QByteArray path = url.path(QUrl::FullyEncoded).toUtf8();
    const QByteArray host = url.host(QUrl::FullyEncoded).toUtf8();
    if (host.isEmpty() || host == driveHost) return path;
    return '/' + host + (path == "/" ? QByteArray() : path);
}

QByteArray escaped(std::string_view path) {
    QByteArray utf8 = QByteArray::fromStdString(toUtf8(path));
    utf8.replace('\\', '/');
    return utf8.toPercentEncoding("/:@!$&'()*+,;=");
}

/// Authors escape with the bytes of their code page, the engine with those of UTF-8.
std::optional<std::string> textOfBytes(const QByteArray& raw) {
    if (QString::fromUtf8(raw).contains(QChar::ReplacementCharacter)) return raw.toStdString();
    return fromUtf8Strict(raw.toStdString());
}

/// The path of a drive URL as it is written, decoded.
std::optional<std::string> writtenPath(const QUrl& url) {
    if (!isDriveUrl(url)) return std::nullopt;
    const auto path = textOfBytes(QByteArray::fromPercentEncoding(escapedPathOf(url)));
    if (!path) return std::nullopt;
    return std::string{url.scheme()[0].toUpper().toLatin1()} + ':' + *path;
}

}  // namespace

std::string driveUrlStart(char letter) { return std::string{lower(letter)} + "://" + driveHost; }

bool isDriveUrl(const QUrl& url) {
    const QString scheme = url.scheme();
    return scheme.size() == 1 && isLetter(scheme[0].toLatin1());
}

bool isOnline(const QUrl& url) {
    return url.scheme() == QLatin1StringView("http") || url.scheme() == QLatin1StringView("https");
}

QUrl urlOfAddress(std::string_view address, std::size_t folderLength) {
    if (!isDosPath(address))
        return QUrl::fromEncoded(QByteArray::fromStdString(toUtf8(address)), QUrl::TolerantMode);
    const std::size_t hash = std::min(address.find('#', folderLength), address.size());
    QUrl url = driveUrl(address[0], escaped(address.substr(2, hash - 2)));
    if (hash < address.size()) {
        url.setFragment(QString::fromStdString(toUtf8(address.substr(hash + 1))), QUrl::TolerantMode);
    }
    return url;
}

QUrl normalisedUrl(const QUrl& url) {
    if (!isDriveUrl(url)) return url;
    QByteArray path = escapedPathOf(url);
    path.replace("%5C", "/").replace('\\', '/');
    if (!path.isEmpty() && !path.startsWith('/')) return url;  // as the engine never writes it
    QUrl result = driveUrl(url.scheme()[0].toLatin1(), path);
    if (url.hasQuery()) result.setQuery(url.query(QUrl::FullyEncoded), QUrl::TolerantMode);
    if (url.hasFragment()) result.setFragment(url.fragment(QUrl::FullyEncoded), QUrl::TolerantMode);
    return result;
}

std::optional<std::string> dosPathOfUrl(const QUrl& url) {
    const auto path = writtenPath(url);
    return path ? canonicalDosPath(*path) : std::nullopt;
}

std::string addressOfUrl(const QUrl& url) {
    auto path = dosPathOfUrl(url);
    if (!path) path = writtenPath(url);
    if (!path) return fromUtf8(url.toEncoded().toStdString());
    if (url.hasQuery()) *path += '?' + fromUtf8(url.query(QUrl::FullyDecoded).toStdString());
    if (url.hasFragment()) *path += '#' + fromUtf8(url.fragment(QUrl::FullyDecoded).toStdString());
    return *path;
}

}  // namespace platform
