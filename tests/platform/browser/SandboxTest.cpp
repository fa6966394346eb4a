#include <sched.h>
#include <unistd.h>

#include <QWebEngineView>
#include <fstream>

#include "platform/browser/BrowserProcess.h"
#include "platform/browser/UserNamespaces.h"
#include "tests/support/browser/BrowserMachine.h"

using namespace platform;

namespace {

/// Whether the host filters what a process may ask of it.
bool isFiltered(qint64 process) {
    std::ifstream status("/proc/" + std::to_string(process) + "/status");
    for (std::string line; std::getline(status, line);) {
        if (line.starts_with("Seccomp:")) return line.ends_with('2');
    }
    return false;
}

TEST(MissingSandbox, IsToldWithItsReason) {
    const struct {
        bool isRoot;
        bool isSwitchedOff;
        const char* flags;
        const char* told;
    } notices[] = {
        {false, false, "", ""},
        {false, false, "--force-prefers-reduced-motion", ""},
        {true, false, "", "Started as root"},
        {true, true, "", "Started as root"},
        {false, true, "", "QTWEBENGINE_DISABLE_SANDBOX"},
        {false, false, "--x --no-sandbox", "QTWEBENGINE_CHROMIUM_FLAGS"},
        {false, false, "--single-process", "QTWEBENGINE_CHROMIUM_FLAGS"},
    };
    for (const auto& [isRoot, isSwitchedOff, flags, told] : notices) {
        const auto line = missingSandbox(isRoot, isSwitchedOff, flags);
        EXPECT_TRUE(line.starts_with(told) && line.empty() == (*told == 0)) << flags << ": " << line;
    }
}

TEST(MissingSandbox, UserNamespacesDoNotWorkWhereTheHostRefusesThem) {
    const auto tryInTheDeepest = [] {
        // The host allows so many within each other, or none.
        while (::unshare(CLONE_NEWUSER) == 0) {
        }
        ::_exit(userNamespacesWork() ? 1 : 0);
    };
    EXPECT_EXIT(tryInTheDeepest(), testing::ExitedWithCode(0), "");
}

class Sandbox : public BrowserMachine {};

TEST_F(Sandbox, HoldsThePagesOfAPlainUser) {
    if (::geteuid() == 0) GTEST_SKIP() << "as root there is none";
    write("D:\\a.htm", "<TITLE>a</TITLE>");
    open("D:\\a.htm");
    const auto* view = window.findChild<QWebEngineView*>();
    ASSERT_NE(view, nullptr);
    EXPECT_TRUE(isFiltered(view->page()->renderProcessPid()));
}

}  // namespace
