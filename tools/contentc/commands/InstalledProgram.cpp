#include "tools/contentc/commands/InstalledProgram.h"

#include <initializer_list>
#include <system_error>

namespace contentc {
namespace {

namespace fs = std::filesystem;

fs::path firstThere(std::initializer_list<fs::path> candidates) {
    std::error_code ignored;
    for (const fs::path& candidate : candidates) {
        if (fs::exists(candidate, ignored)) return candidate;
    }
    return {};
}

}  // namespace

InstalledProgram findInstalledProgram() {
    std::error_code ignored;
    const fs::path programs = fs::read_symlink("/proc/self/exe", ignored).parent_path();
    const fs::path above = programs.parent_path();
    const fs::path shared = above / "share/kalyxo";
    return {firstThere({programs / "kalyxo"}),
            {firstThere({above / "content/sources", shared / "sources"}),
             firstThere({above / "content/data", shared / "content"})},
            firstThere({above / "content/starter", shared / "starter"})};
}

}  // namespace contentc
