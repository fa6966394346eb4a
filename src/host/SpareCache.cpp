#include "src/host/SpareCache.h"

#include <unistd.h>

#include <cstdlib>
#include <string>
#include <system_error>

namespace kalyxo {

namespace fs = std::filesystem;

namespace {

bool canBeWritten(const platform::FileSystem& files, const std::string& folder) {
    files.createFolder(folder);
    const auto native = files.nativePath(folder);
    return native && files.isFolder(folder) && ::access(native->c_str(), W_OK | X_OK) == 0;
}

/// Empty when none can be made.
fs::path makeTemporaryFolder() {
    std::error_code error;
    const fs::path above = fs::temp_directory_path(error);
    std::string name = (above / "kalyxo-XXXXXX").string();
    return !error && ::mkdtemp(name.data()) != nullptr ? fs::path(name) : fs::path();
}

}  // namespace

SpareCache::SpareCache(platform::Machine& machine) {
    const std::string& program = machine.programPath();
    const std::string cache = program.substr(0, program.rfind('\\')) + "\\cache";
    if (canBeWritten(machine.files(), cache)) return;
    m_folder = makeTemporaryFolder();
    if (!m_folder.empty()) machine.files().mount(cache, m_folder);
}

SpareCache::~SpareCache() {
    std::error_code ignored;
    if (!m_folder.empty()) fs::remove_all(m_folder, ignored);
}

}  // namespace kalyxo
