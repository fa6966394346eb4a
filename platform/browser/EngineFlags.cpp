#include "platform/browser/EngineFlags.h"

#include <QByteArray>
#include <QDir>
#include <algorithm>
#include <iterator>
#include <string_view>

namespace platform {

namespace {

/// The engine's switch that lets it find these hosts only.
QByteArray hostRules(const std::vector<std::string>& hosts) {
    QByteArray rules = " --host-resolver-rules=\"MAP * ~NOTFOUND";
    for (const std::string& host : hosts) rules += " , EXCLUDE " + QByteArray::fromStdString(host);
    return rules + '"';
}

bool isHostName(std::string_view name) {
    return !name.empty() && std::ranges::all_of(name, [](char c) {
        return (c >= 'a' && c <= 'z') || (c >= '0' && c <= '9') || c == '-' || c == '.';
    });
}

}  // namespace

void setEngineFlags() {
    // Content needs none of these features, and the policy does not see all requests that they make. A newer
    // engine may not know one of these names; `contentLimits` removes what matters of them in any case.
    QByteArray flags =
        "--disable-blink-features=FileSystemAccess,FileSystemAccessLocal,Presentation,SharedWorker,"
        "WebTransport "
        // Connections between browsers send packets that the policy does not see. Without a proxy, this
        // allows none.
        "--force-webrtc-ip-handling-policy=disable_non_proxied_udp "
        "--disable-background-networking --disable-component-update --disable-domain-reliability "
        "--disable-sync --no-pings --log-level=3 "
        // One process draws all pages, instead of a new one for each that is opened.
        "--renderer-process-limit=1 "
        // That process goes on from page to page, and collects what they leave behind as this limit, in MB,
        // comes near; by itself it would take some hundred MB more.
        "--js-flags=--max-old-space-size=128 "
        // No process waits to become one that runs without the sandbox: the few there are start by
        // themselves.
        "--no-unsandboxed-zygote";
    // At first no name resolves, so that even a request that the policy does not see cannot reach the
    // network.
    flags += hostRules({});
    const QByteArray platformName = qgetenv("QT_QPA_PLATFORM");
    if (platformName.startsWith("offscreen") || platformName.startsWith("minimal")) flags += " --disable-gpu";
    const QByteArray given = qgetenv(engineFlagsVariable);
    qputenv(engineFlagsVariable, given.isEmpty() ? flags : given + ' ' + flags);
}

bool hasGraphicsCard(const std::string& devices) {
    const QDir folder(QString::fromStdString(devices));
    // Not with a name filter, which is a regular expression and would load the library for them.
    const QStringList drivers =
        QDir(folder.filePath(QStringLiteral("dri"))).entryList(QDir::System | QDir::Files);
    const bool isKernelDriver = std::ranges::any_of(
        drivers, [](const QString& file) { return file.startsWith(QLatin1StringView("renderD")); });
    // The other two: NVIDIA's driver, and Windows around a virtual machine.
    return isKernelDriver || folder.exists(QStringLiteral("nvidia0")) || folder.exists(QStringLiteral("dxg"));
}

void letEngineFind(const std::vector<std::string>& hosts) {
    std::vector<std::string> names;
    std::ranges::copy_if(hosts, std::back_inserter(names), isHostName);
    // If a switch is given twice, the second one counts.
    qputenv(engineFlagsVariable, qgetenv(engineFlagsVariable) + hostRules(names));
}

}  // namespace platform
