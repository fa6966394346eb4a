#include <fcntl.h>
#include <unistd.h>

#include <QApplication>
#include <array>
#include <cstdio>
#include <span>

#include "platform/base/Resources.h"
#include "platform/browser/BrowserProcess.h"
#include "platform/drawing/LightPalette.h"
#include "platform/framework/Run.h"
#include "platform/machine/Machine.h"
#include "src/app/KalyxoApp.h"
#include "src/host/InstalledFiles.h"
#include "src/host/MachineSetup.h"
#include "src/resources/ResourceTable.h"
#include "tools/drive/ProcessSetup.h"
#include "tools/drive/Session.h"
#include "tools/drive/script/CommandLine.h"

namespace drive {
namespace {

constexpr int wrongUse = 2;

int complain(const std::string& problem) {
    std::fprintf(stderr, "kalyxo-drive: %s\n", problem.c_str());
    return wrongUse;
}

int refuse(const platform::Failure& failure) {
    complain(failure.message);
    std::fputs(std::string(usage()).c_str(), stderr);
    return wrongUse;
}

int carryOut(const NewMachine& task) {
    const kalyxo::InstalledFiles installed = kalyxo::FindInstalledFiles(kalyxo::RunningProgramsFolder());
    if (installed.modules.empty()) return complain("the component modules are not where they belong");
    const auto made = platform::makeMachine(
        task.machine, kalyxo::NewMachineOptions(task.data, installed.modules,
                                                {.outside = task.outside, .bare = task.bare}));
    return made ? 0 : complain(made.failure().message);
}

/// The argument of `-platform`: the machine's screen, unless the environment names another platform.
std::string platformChoice(const platform::ScreenConfig& screen) {
    constexpr const char* variable = "QT_QPA_PLATFORM";
    if (!qEnvironmentVariableIsSet(variable)) qputenv(variable, "offscreen");
    const QByteArray chosen = qgetenv(variable);
    return chosen == "offscreen" ? offscreenPlatform(screen) : chosen.toStdString();
}

int runSession(int script, bool follows) {
    kalyxo::CKalyxoApp program;
    program.m_bFollowContent = follows;
    Session session(script, program);
    session.begin();
    const int status = QCoreApplication::exec();
    // A program that still runs ends without any cleaning up, as when the machine is switched off.
    if (session.programRuns()) ::_exit(status);
    return status;
}

int carryOut(const RunScript& task) {
    const int script = task.script ? ::open(task.script->c_str(), O_RDONLY | O_CLOEXEC) : STDIN_FILENO;
    if (script < 0)
        return complain((task.script ? task.script->string() : "standard input") + ": cannot be read");
    auto machine = platform::Machine::open(task.machine, kalyxo::DefaultMachineConfig());
    if (!machine) return complain(machine.failure().message);
    platform::Machine& opened = **machine;
    opened.trace().enable();
    opened.enableAnswers();
    opened.setVirtualTime(true);
    platform::setMachine(&opened);

    std::string screen = platformChoice(opened.screen());
    std::string name = "kalyxo-drive";
    std::string option = "-platform";
    std::array arguments = {name.data(), option.data(), screen.data()};
    int count = static_cast<int>(arguments.size());
    platform::prepareProcess();
    QApplication application(count, arguments.data());
    QApplication::setQuitOnLastWindowClosed(false);
    // The text cursor does not blink: pictures show the same at any time.
    QApplication::setCursorFlashTime(0);
    platform::applyLightPalette();
    const int status = runSession(script, task.follow);
    platform::setMachine(nullptr);
    return status;
}

}  // namespace
}  // namespace drive

int main(int argc, char** argv) {
    drive::reportCrashes();
    platform::SetResources(kalyxo::ProgramResources());
    const auto task =
        drive::taskOf(std::span<const char* const>(argv, static_cast<std::size_t>(argc)).subspan(1));
    if (!task) return drive::refuse(task.failure());
    return std::visit([](const auto& what) { return drive::carryOut(what); }, *task);
}
