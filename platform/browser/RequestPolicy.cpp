#include "platform/browser/RequestPolicy.h"

#include <algorithm>

#include "platform/browser/DosUrl.h"
#include "platform/files/DosPath.h"

namespace platform {

namespace {

const QUrl& emptyPage() {
    static const QUrl url(QStringLiteral("about:blank"));
    return url;
}

bool isInlineData(const QUrl& url) {
    return url.scheme() == QLatin1StringView("data") || url.scheme() == QLatin1StringView("blob");
}

}  // namespace

bool RequestPolicy::allowsFile(std::string_view canonicalPath) const {
    return std::ranges::any_of(folders_,
                               [&](const auto& folder) { return liesBelow(canonicalPath, folder); });
}

bool RequestPolicy::allowsFile(const QUrl& url) const {
    const auto path = dosPathOfUrl(url);
    return path && allowsFile(*path);
}

bool RequestPolicy::allowsHost(const QUrl& url) const {
    const std::string host = isOnline(url) ? url.host().toLower().toStdString() : std::string();
    return !host.empty() && std::ranges::find(hosts_, host) != hosts_.end();
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
