#include "platform/browser/RequestPolicy.h"

#include <algorithm>

#include "platform/browser/DosUrl.h"
#include "platform/text/CodePage1253.h"

namespace platform {

namespace {

const QUrl& emptyPage() {
    static const QUrl url(QStringLiteral("about:blank"));
    return url;
}

/// In small letters, with a backslash at the end.
std::string asFolder(std::string_view canonicalPath) {
    std::string path = toLower(canonicalPath);
    if (!path.ends_with('\\')) path += '\\';
    return path;
}

bool isInlineData(const QUrl& url) {
    return url.scheme() == QLatin1StringView("data") || url.scheme() == QLatin1StringView("blob");
}

}  // namespace

void RequestPolicy::setAllowedFolders(const std::vector<std::string>& folders) {
    folders_.clear();
    for (const auto& folder : folders) {
        if (const auto path = canonicalDosPath(folder)) folders_.push_back(asFolder(*path));
    }
}

bool RequestPolicy::allowsFile(std::string_view canonicalPath) const {
    const std::string path = asFolder(canonicalPath);
    return std::any_of(folders_.begin(), folders_.end(),
                       [&](const auto& folder) { return path.starts_with(folder); });
}

bool RequestPolicy::allowsFile(const QUrl& url) const {
    const auto path = dosPathOfUrl(url);
    return path && allowsFile(*path);
}

bool RequestPolicy::allowsHost(const QUrl& url) const {
    const std::string host = isOnline(url) ? url.host().toLower().toStdString() : std::string();
    return !host.empty() && std::find(hosts_.begin(), hosts_.end(), host) != hosts_.end();
}

bool RequestPolicy::allows(const PageRequest& request) const {
    const QUrl& address = request.address;
    if (address == emptyPage()) return true;
    const bool isProgram = request.kind == RequestKind::program;
    if (isProgram) return isInlineData(address) || allowsFile(address) || allowsHost(address);
    if (isInlineData(address)) {
        return request.kind == RequestKind::part && (allowsFile(request.page) || allowsHost(request.page));
    }
    return (allowsFile(address) && allowsFile(request.page)) ||
           (allowsHost(address) && allowsHost(request.page));
}

}  // namespace platform
