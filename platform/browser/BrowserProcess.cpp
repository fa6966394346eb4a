#include "platform/browser/BrowserProcess.h"

#include <unistd.h>

#include <QByteArray>
#include <QCoreApplication>
#include <QLoggingCategory>
#include <algorithm>
#include <array>
#include <cstdio>
#include <string_view>

#include "platform/browser/EngineFlags.h"
#include "platform/browser/EngineLibrary.h"
#include "platform/browser/UserNamespaces.h"
#include "platform/browser/WebBrowserComponent.h"
#include "platform/components/ComponentHost.h"

namespace platform {

namespace {

constexpr const char* sandboxVariable = "QTWEBENGINE_DISABLE_SANDBOX";
constexpr const char* quickVariable = "QT_QUICK_BACKEND";
constexpr const char* namespacesOff = "--disable-namespace-sandbox";

void tell(std::string_view line) { std::fwrite(line.data(), 1, line.size(), stderr); }

/// False when the host refuses the sandbox.
bool setUpSandbox() {
    const bool isRoot = ::geteuid() == 0;
    const QByteArray flags = qgetenv(engineFlagsVariable);
    const auto missing = missingSandbox(isRoot, qEnvironmentVariableIsSet(sandboxVariable),
                                        {flags.constData(), static_cast<std::size_t>(flags.size())});
    tell(missing);
    if (isRoot) qputenv(sandboxVariable, "1");
    if (!missing.empty() || userNamespacesWork()) return true;
    tell("This machine refuses user namespaces, which the sandbox of the browser engine is made of.\n");
    // With some refusals the engine would end this process when it tries by itself.
    qputenv(engineFlagsVariable, flags.isEmpty() ? QByteArray(namespacesOff) : flags + ' ' + namespacesOff);
    return false;
}

std::unique_ptr<Component> makeBrowser(ComponentSite& site, QWidget* container) {
    return engineIsInstalled() ? std::make_unique<WebBrowserComponent>(site, container) : nullptr;
}

}  // namespace

std::string_view missingSandbox(bool isRoot, bool isSwitchedOff, std::string_view flags) {
    constexpr std::array switches = {"--no-sandbox", "--single-process", namespacesOff,
                                     "--disable-seccomp-filter-sandbox"};
    if (isRoot) return "Started as root: the browser engine runs without its sandbox.\n";
    if (isSwitchedOff) return "QTWEBENGINE_DISABLE_SANDBOX: the browser engine runs without its sandbox.\n";
    const bool isGiven =
        std::ranges::any_of(switches, [flags](const char* one) { return flags.find(one) != flags.npos; });
    return isGiven ? "QTWEBENGINE_CHROMIUM_FLAGS: the browser engine runs without all of its sandbox.\n" : "";
}

bool prepareProcess() {
    ComponentHost::addBuiltIn(std::string(WebBrowserComponent::classId), makeBrowser);
    const bool isAllowed = setUpSandbox();
    setEngineFlags();
    QCoreApplication::setAttribute(Qt::AA_ShareOpenGLContexts);
    // Qt Quick, which shows what the engine draws, then draws only what has changed.
    if (!qEnvironmentVariableIsSet(quickVariable) && !hasGraphicsCard("/dev/"))
        qputenv(quickVariable, "software");
    // The engine lists its graphics set-up at every start without a screen.
    QLoggingCategory::setFilterRules(QStringLiteral("qt.webenginecontext*=false"));
    return isAllowed;
}

}  // namespace platform
