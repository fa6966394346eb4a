#include "tools/drive/Screen.h"

#include <sys/mman.h>
#include <unistd.h>

#include "tools/drive/Json.h"

namespace drive {

namespace {

/// A file in memory, open to the end of the process; its path.
std::string memoryFile(const std::string& content) {
    const int file = ::memfd_create("screen", MFD_CLOEXEC);
    if (file < 0 || ::write(file, content.data(), content.size()) < 0) return {};
    return "/proc/self/fd/" + std::to_string(file);
}

}  // namespace

std::string unseenScreen(const platform::ScreenConfig& screen) {
    const Json layout = {{"screens",
                          {{{"name", "machine"},
                            {"x", 0},
                            {"y", 0},
                            {"width", screen.width},
                            {"height", screen.height},
                            {"logicalDpi", 96},
                            {"dpr", 1}}}}};
    const std::string file = memoryFile(layout.dump());
    return file.empty() ? "offscreen" : "offscreen:configfile=" + file;
}

}  // namespace drive
