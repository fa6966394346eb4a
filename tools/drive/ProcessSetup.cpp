#include "tools/drive/ProcessSetup.h"

#include <sys/mman.h>
#include <unistd.h>

#include <QByteArray>
#include <QString>
#include <cmath>
#include <csignal>
#include <string_view>

#include "tools/drive/script/Json.h"

namespace drive {

namespace {

constexpr int crashStatus = 1;
constexpr const char* scaleVariable = "QT_SCALE_FACTOR";

extern "C" void endAfterCrash(int) {
    constexpr std::string_view message = "kalyxo-drive: the program died\n";
    // If even this line cannot be written, nothing more can be done.
    [[maybe_unused]] const ssize_t written = ::write(STDERR_FILENO, message.data(), message.size());
    ::_exit(crashStatus);
}

/// The path of a file in memory that stays open until the process ends.
std::string memoryFile(const std::string& content) {
    const int file = ::memfd_create("screen", MFD_CLOEXEC);
    if (file < 0 || ::write(file, content.data(), content.size()) < 0) return {};
    return "/proc/self/fd/" + std::to_string(file);
}

/// Pixels of the screen to one that the program counts. The environment variable of the caller comes first.
double pixelRatio(const platform::ScreenConfig& screen) {
    if (!qEnvironmentVariableIsSet(scaleVariable) && screen.pixelRatio != 1) {
        qputenv(scaleVariable, QByteArray::number(screen.pixelRatio));
    }
    const double ratio = qEnvironmentVariable(scaleVariable).toDouble();
    return ratio > 0 ? ratio : 1;
}

}  // namespace

void reportCrashes() {
    for (const int signal : {SIGSEGV, SIGBUS, SIGFPE, SIGILL, SIGABRT}) {
        struct sigaction present{};
        ::sigaction(signal, nullptr, &present);
        // A sanitizer's own handler stays.
        if (present.sa_handler == SIG_DFL) std::signal(signal, endAfterCrash);
    }
}

std::string offscreenPlatform(const platform::ScreenConfig& screen) {
    const double ratio = pixelRatio(screen);
    const Json layout = {{"screens",
                          {{{"name", "machine"},
                            {"x", std::lround(screen.left * ratio)},
                            {"y", std::lround(screen.top * ratio)},
                            {"width", std::lround(screen.width * ratio)},
                            {"height", std::lround(screen.height * ratio)},
                            {"logicalDpi", 96},
                            {"dpr", 1}}}}};
    const std::string file = memoryFile(layout.dump());
    return file.empty() ? "offscreen" : "offscreen:configfile=" + file;
}

}  // namespace drive
