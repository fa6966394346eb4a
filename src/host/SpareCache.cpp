#include "src/host/SpareCache.h"

#include <unistd.h>

#include <cstdlib>
#include <string>
#include <system_error>

#include "platform/files/FileHandle.h"

namespace kalyxo {

namespace fs = std::filesystem;

namespace {

/// A page with its glossary is far smaller.
constexpr std::size_t kRoomForPages = std::size_t{1} << 20;

/// Whether that many bytes can be written into the folder: the disk may be full, or the user's share of it.
bool hasRoom(const fs::path& folder) {
    // Should the process be ended by force meanwhile, the next start deletes what has this ending.
    const fs::path path = folder / ("room-" + std::to_string(::getpid()) + ".tmp");
    auto file = platform::FileHandle::createNew(path);
    const std::string bytes(kRoomForPages, '\0');
    const bool written = file && file.write(bytes.data(), bytes.size());
    // A network folder may tell of a full disk only now.
    const bool closed = file.close();
    std::error_code ignored;
    fs::remove(path, ignored);
    return written && closed;
}

bool canBeWritten(const platform::FileSystem& files, const std::string& folder) {
    files.createFolder(folder);
    const auto native = files.nativePath(folder);
    return native && files.isFolder(folder) && hasRoom(*native);
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
