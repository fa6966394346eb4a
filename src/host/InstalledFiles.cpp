#include "src/host/InstalledFiles.h"

#include <initializer_list>
#include <system_error>

namespace kalyxo {

namespace fs = std::filesystem;

namespace {

fs::path firstFolder(std::initializer_list<fs::path> candidates) {
    std::error_code ignored;
    for (const fs::path& candidate : candidates) {
        if (fs::is_directory(candidate, ignored)) return candidate;
    }
    return {};
}

}  // namespace

InstalledFiles FindInstalledFiles(const fs::path& programs) {
    const fs::path above = programs.parent_path();
    return {firstFolder({above / "ActiveX", above / "lib/kalyxo/ActiveX"}),
            firstFolder({above / "content/data", above / "share/kalyxo/content"})};
}

fs::path RunningProgramsFolder() {
    std::error_code ignored;
    return fs::read_symlink("/proc/self/exe", ignored).parent_path();
}

}  // namespace kalyxo
