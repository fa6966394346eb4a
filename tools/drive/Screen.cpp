#include "tools/drive/Screen.h"

#include <sys/mman.h>
#include <unistd.h>

#include <QByteArray>
#include <QString>
#include <cmath>

#include "tools/drive/script/Json.h"

namespace drive {

namespace {

/// A file in memory, open to the end of the process; its path.
std::string memoryFile(const std::string& content) {
    const int file = ::memfd_create("screen", MFD_CLOEXEC);
    if (file < 0 || ::write(file, content.data(), content.size()) < 0) return {};
    return "/proc/self/fd/" + std::to_string(file);
}

constexpr const char* kScaleVariable = "QT_SCALE_FACTOR";

/// Pixels of the screen to one that the program counts; what the caller says comes first.
double pixelRatio(const platform::ScreenConfig& screen) {
    if (!qEnvironmentVariableIsSet(kScaleVariable) && screen.pixelRatio != 1) {
        qputenv(kScaleVariable, QByteArray::number(screen.pixelRatio));
    }
    const double ratio = qEnvironmentVariable(kScaleVariable).toDouble();
    return ratio > 0 ? ratio : 1;
}

}  // namespace

std::string unseenScreen(const platform::ScreenConfig& screen) {
    const double ratio = pixelRatio(screen);
    const Json layout = {{"screens",
                          {{{"name", "machine"},
                            {"x", 0},
                            {"y", 0},
                            {"width", std::lround(screen.width * ratio)},
                            {"height", std::lround(screen.height * ratio)},
                            {"logicalDpi", 96},
                            {"dpr", 1}}}}};
    const std::string file = memoryFile(layout.dump());
    return file.empty() ? "offscreen" : "offscreen:configfile=" + file;
}

}  // namespace drive
