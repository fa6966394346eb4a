#include "platform/browser/BrowserPolicy.h"

#include <QLoggingCategory>

#include "platform/browser/BrowserProcess.h"
#include "platform/text/CodePage1253.h"

namespace platform {

namespace {
Q_LOGGING_CATEGORY(browserLog, "platform.browser")
}

BrowserPolicy& BrowserPolicy::instance() {
    static BrowserPolicy policy;
    return policy;
}

void BrowserPolicy::setAllowedHosts(const std::vector<std::string>& hosts) {
    policy_.setAllowedHosts(hosts);
    letEngineFind(hosts);
}

bool BrowserPolicy::admit(std::string_view page, std::string_view request) const {
    if (policy_.allows(page, request)) return true;
    // Inline data can be megabytes long.
    const std::string shown = toUtf8(request.substr(0, 200));
    qCWarning(browserLog, "Refused: %s, asked for by %s", shown.c_str(),
              page.empty() ? "the program" : toUtf8(page).c_str());
    return false;
}

}  // namespace platform
