#include <QUrl>

#include "fuzz/Target.h"
#include "platform/browser/DosUrl.h"
#include "platform/browser/RequestPolicy.h"
#include "platform/files/DosPath.h"

namespace {

using namespace platform;

/// What the policy lets through is opened by this path.
void judge(const RequestPolicy& policy, const PageRequest& request) {
    if (!policy.allows(request)) return;
    const auto path = dosPathOfUrl(request.address);
    if (!path) return;
    fuzz::require(canonicalDosPath(*path) == path, "the judged path is canonical");
    fuzz::require(liesBelow(*path, "C:\\Kalyxo\\cache\\") || liesBelow(*path, "D:\\"),
                  "a file lies in an allowed folder");
    fuzz::require(path->find("\\..") == path->npos || path->find("\\..\\") == path->npos,
                  "no path leads upwards");
    fuzz::require(path->find('\0') == path->npos, "no path holds a NUL");
}

}  // namespace

/// The address of a page, and one that it asks for.
void fuzz::tryInput(std::string_view input) {
    const auto parts = partsOf(input, 2);
    RequestPolicy policy;
    policy.setAllowedFolders({"C:\\Kalyxo\\cache\\", "D:\\"});
    policy.setAllowedHosts({"orvane.example"});
    const QUrl page = normalisedUrl(urlOfAddress(parts[0]));
    const QUrl asEngine = QUrl::fromEncoded(QByteArray::fromStdString(parts[1]));
    for (const QUrl& address : {asEngine, normalisedUrl(asEngine), normalisedUrl(urlOfAddress(parts[1]))}) {
        (void)addressOfUrl(address);
        for (const auto kind :
             {RequestKind::program, RequestKind::mainPage, RequestKind::onward, RequestKind::part}) {
            judge(policy, {kind, page, address});
        }
        const bool foreign = isOnline(address) && address.host().compare(QLatin1StringView("orvane.example"),
                                                                         Qt::CaseInsensitive) != 0;
        require(!foreign || !policy.allows({RequestKind::program, page, address}),
                "no other host is reached");
    }
}
