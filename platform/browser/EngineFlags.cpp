#include "platform/browser/EngineFlags.h"

#include <QByteArray>
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
    // Content has no use for these, and the policy does not see all that they ask for. A newer engine may not
    // know the name of one; `contentLimits` takes away what matters of them.
    QByteArray flags =
        "--disable-blink-features=FileSystemAccess,FileSystemAccessLocal,Presentation,SharedWorker,"
        "WebTransport "
        // Packets of connections between browsers pass the policy by; without a proxy there are none now.
        "--force-webrtc-ip-handling-policy=disable_non_proxied_udp "
        "--disable-background-networking --disable-component-update --disable-domain-reliability "
        "--disable-sync --no-pings --log-level=3 "
        // One process draws all pages, instead of a new one for each that is opened.
        "--renderer-process-limit=1";
    // No name resolves at first, so that no request that the policy does not see can reach the network
    // either.
    flags += hostRules({});
    const QByteArray platformName = qgetenv("QT_QPA_PLATFORM");
    if (platformName.startsWith("offscreen") || platformName.startsWith("minimal")) flags += " --disable-gpu";
    const QByteArray given = qgetenv(engineFlagsVariable);
    qputenv(engineFlagsVariable, given.isEmpty() ? flags : given + ' ' + flags);
}

void letEngineFind(const std::vector<std::string>& hosts) {
    std::vector<std::string> names;
    std::ranges::copy_if(hosts, std::back_inserter(names), isHostName);
    // Of two switches of one name the later one counts.
    qputenv(engineFlagsVariable, qgetenv(engineFlagsVariable) + hostRules(names));
}

}  // namespace platform
