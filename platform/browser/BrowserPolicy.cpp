#include "platform/browser/BrowserPolicy.h"

#include <QLoggingCategory>

#include "platform/browser/DosUrl.h"
#include "platform/browser/EngineFlags.h"
#include "platform/browser/RequestPolicy.h"
#include "platform/text/CodePage1253.h"

namespace platform {

namespace {

Q_LOGGING_CATEGORY(browserLog, "platform.browser")

/// Inline data can be megabytes long.
constexpr std::size_t maxLoggedLength = 200;
/// A page can invent any number of addresses.
constexpr std::size_t maxLogged = 200;

std::string shown(const QUrl& url) { return toUtf8(addressOfUrl(url).substr(0, maxLoggedLength)); }

}  // namespace

BrowserPolicy& BrowserPolicy::instance() {
    static BrowserPolicy policy;
    return policy;
}

BrowserPolicy::BrowserPolicy() : policy_(std::make_unique<RequestPolicy>()) {}

BrowserPolicy::~BrowserPolicy() = default;

void BrowserPolicy::setAllowedFolders(const std::vector<std::string>& folders) {
    policy_->setAllowedFolders(folders);
}

const std::vector<std::string>& BrowserPolicy::allowedFolders() const { return policy_->allowedFolders(); }

void BrowserPolicy::setAllowedHosts(const std::vector<std::string>& hosts) {
    policy_->setAllowedHosts(hosts);
    letEngineFind(hosts);
}

bool BrowserPolicy::admit(const PageRequest& request) {
    if (policy_->allows(request)) return true;
    logRefusal(request);
    return false;
}

bool BrowserPolicy::allowsFile(std::string_view canonicalPath) const {
    return policy_->allowsFile(canonicalPath);
}

void BrowserPolicy::logRefusal(const PageRequest& request) {
    const std::string asker = request.kind == RequestKind::program ? "the program" : shown(request.page);
    const std::string line = shown(request.address) + ", asked for by " + asker + ", since " +
                             std::string(policy_->whyRefused(request));
    if (logged_.size() >= maxLogged || !logged_.insert(line).second) return;
    qCWarning(browserLog, "Refused: %s", line.c_str());
    if (logged_.size() == maxLogged) qCWarning(browserLog, "Further refusals are not shown.");
}

}  // namespace platform
