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

std::string_view RequestPolicy::whyRefused(const PageRequest& request) const {
    constexpr std::string_view strangePage = "the page that asks comes from elsewhere";
    const QUrl& address = request.address;
    const bool isProgram = request.kind == RequestKind::program;
    if (address == emptyPage()) return {};
    if (isInlineData(address)) {
        if (isProgram) return {};
        if (request.kind != RequestKind::part) return "inline data may only be a part of a page";
        return allowsFile(request.page) || allowsHost(request.page) ? std::string_view() : strangePage;
    }
    const bool isFile = allowsFile(address);
    if (!isFile && !allowsHost(address))
        return isOnline(address) ? "its host is not allowed" : "it is in no allowed folder";
    const bool mayAsk = isProgram || (isFile ? allowsFile(request.page) : allowsHost(request.page));
    return mayAsk ? std::string_view() : strangePage;
}

}  // namespace platform
