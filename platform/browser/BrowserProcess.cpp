#include "platform/browser/BrowserProcess.h"

#include <unistd.h>

#include <QByteArray>
#include <QCoreApplication>
#include <QFileInfo>
#include <QLibraryInfo>
#include <QLoggingCategory>
#include <QWebEngineUrlScheme>
#include <algorithm>
#include <array>
#include <cstdio>
#include <iterator>
#include <string_view>

#include "platform/browser/WebBrowserComponent.h"
#include "platform/components/ComponentHost.h"

namespace platform {

namespace {

constexpr const char* sandboxVariable = "QTWEBENGINE_DISABLE_SANDBOX";
constexpr const char* flagsVariable = "QTWEBENGINE_CHROMIUM_FLAGS";

void registerDriveSchemes() {
    for (char letter = 'a'; letter <= 'z'; ++letter) {
        QWebEngineUrlScheme scheme(QByteArray(1, letter));
        scheme.setSyntax(QWebEngineUrlScheme::Syntax::Path);
        scheme.setFlags(QWebEngineUrlScheme::LocalScheme | QWebEngineUrlScheme::LocalAccessAllowed |
                        QWebEngineUrlScheme::CorsEnabled);
        QWebEngineUrlScheme::registerScheme(scheme);
    }
}

void setUpSandbox() {
    const bool isRoot = ::geteuid() == 0;
    const QByteArray flags = qgetenv(flagsVariable);
    const auto missing = missingSandbox(isRoot, qEnvironmentVariableIsSet(sandboxVariable),
                                        {flags.constData(), static_cast<std::size_t>(flags.size())});
    std::fwrite(missing.data(), 1, missing.size(), stderr);
    if (isRoot) qputenv(sandboxVariable, "1");
}

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
    const QByteArray given = qgetenv(flagsVariable);
    qputenv(flagsVariable, given.isEmpty() ? flags : given + ' ' + flags);
}

std::unique_ptr<Component> makeBrowser(ComponentSite& site, QWidget* container) {
    return engineIsInstalled() ? std::make_unique<WebBrowserComponent>(site, container) : nullptr;
}

}  // namespace

std::string_view missingSandbox(bool isRoot, bool isSwitchedOff, std::string_view flags) {
    constexpr std::array switches = {"--no-sandbox", "--single-process", "--disable-namespace-sandbox",
                                     "--disable-seccomp-filter-sandbox"};
    if (isRoot) return "Started as root: the browser engine runs without its sandbox.\n";
    if (isSwitchedOff) return "QTWEBENGINE_DISABLE_SANDBOX: the browser engine runs without its sandbox.\n";
    const bool isGiven =
        std::ranges::any_of(switches, [flags](const char* one) { return flags.find(one) != flags.npos; });
    return isGiven ? "QTWEBENGINE_CHROMIUM_FLAGS: the browser engine runs without all of its sandbox.\n" : "";
}

void prepareProcess() {
    ComponentHost::addBuiltIn(std::string(WebBrowserComponent::classId), makeBrowser);
    registerDriveSchemes();
    setUpSandbox();
    setEngineFlags();
    QCoreApplication::setAttribute(Qt::AA_ShareOpenGLContexts);
    // The engine lists its graphics set-up at every start without a screen.
    QLoggingCategory::setFilterRules(QStringLiteral("qt.webenginecontext*=false"));
}

bool engineIsInstalled() {
    const QString given = qEnvironmentVariable("QTWEBENGINEPROCESS_PATH");
    if (!given.isEmpty()) return QFileInfo::exists(given);
    const QString name = QStringLiteral("/QtWebEngineProcess");
    return QFileInfo::exists(QLibraryInfo::path(QLibraryInfo::LibraryExecutablesPath) + name) ||
           QFileInfo::exists(QCoreApplication::applicationDirPath() + name);
}

void letEngineFind(const std::vector<std::string>& hosts) {
    std::vector<std::string> names;
    std::ranges::copy_if(hosts, std::back_inserter(names), isHostName);
    // Of two switches of one name the later one counts.
    qputenv(flagsVariable, qgetenv(flagsVariable) + hostRules(names));
}

}  // namespace platform
