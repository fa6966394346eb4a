#include "tools/contentc/DataFolderWriter.h"

#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <fstream>
#include <optional>
#include <system_error>
#include <utility>

#include "tools/contentc/DataFolderMessages.h"

namespace contentc {
namespace {

namespace fs = std::filesystem;

constexpr const char* startPage = "a.htm";

/// What went wrong with a file or folder; nothing when nothing did.
struct WriteFault {
    fs::path path;
    std::error_code reason;
};
using Fault = std::optional<WriteFault>;

Fault faultOf(const fs::path& path, const std::error_code& reason) {
    return reason ? Fault(WriteFault{path, reason}) : std::nullopt;
}

/// A hidden folder beside the given one.
fs::path siblingOf(const fs::path& folder, const std::string& suffix) {
    return folder.parent_path() / ('.' + folder.filename().string() + suffix + std::to_string(::getpid()));
}

/// A folder that is removed with its contents when the object is created and when it is destroyed.
class TemporaryFolder {
  public:
    explicit TemporaryFolder(fs::path path) : path_(std::move(path)) { remove(); }
    ~TemporaryFolder() { remove(); }
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;

    const fs::path& path() const { return path_; }

  private:
    void remove() const {
        std::error_code ignored;
        fs::remove_all(path_, ignored);
    }

    fs::path path_;
};

fs::path nativePath(const fs::path& folder, std::string dosPath) {
    std::ranges::replace(dosPath, '\\', '/');
    return folder / dosPath;
}

Fault writeFile(const fs::path& path, const std::string& bytes) {
    std::error_code failed;
    fs::create_directories(path.parent_path(), failed);
    if (failed) return faultOf(path.parent_path(), failed);
    errno = 0;
    std::ofstream stream(path, std::ios::binary | std::ios::trunc);
    stream.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    stream.close();
    if (stream) return std::nullopt;
    return faultOf(path, std::error_code(errno != 0 ? errno : EIO, std::generic_category()));
}

bool holds(const fs::path& path, const std::string& bytes) {
    std::error_code failed;
    if (!fs::is_regular_file(fs::symlink_status(path, failed))) return false;
    if (fs::file_size(path, failed) != bytes.size() || failed) return false;
    std::string held(bytes.size(), '\0');
    std::ifstream stream(path, std::ios::binary);
    return stream.read(held.data(), static_cast<std::streamsize>(held.size())) && held == bytes;
}

/// Gives a file of the former folder a second name, since a new file costs far more time. Whether it has
/// these bytes and the file system can do so.
bool takeOver(const fs::path& former, const fs::path& path, const std::string& bytes) {
    if (!holds(former, bytes)) return false;
    std::error_code failed;
    fs::create_directories(path.parent_path(), failed);
    if (!failed) fs::create_hard_link(former, path, failed);
    return !failed;
}

Fault writeAll(const OutputFiles& files, const fs::path& folder, const fs::path& former) {
    for (const auto& [key, file] : files.files()) {
        const fs::path path = nativePath(folder, file.path);
        // The program takes the time of the start page for that of the folder.
        const bool isTaken = key != startPage && takeOver(nativePath(former, file.path), path, file.bytes);
        if (isTaken) continue;
        if (auto fault = writeFile(path, file.bytes)) return fault;
    }
    return std::nullopt;
}

/// Replacing a folder deletes its contents, so it must be empty or a data folder.
bool mayReplace(const fs::path& folder) {
    std::error_code failed;
    if (!fs::exists(fs::symlink_status(folder, failed))) return true;
    if (!fs::is_directory(folder, failed)) return false;
    return fs::is_empty(folder, failed) || fs::is_regular_file(folder / startPage, failed);
}

/// Exchanges two folders in one step, so that whoever reads finds one or the other. Not every file system
/// can.
bool exchange(const fs::path& one, const fs::path& other) {
    return ::renameat2(AT_FDCWD, one.c_str(), AT_FDCWD, other.c_str(), RENAME_EXCHANGE) == 0;
}

/// Puts the folder `made` in the place of `folder`. A former folder is removed last, or put back after a
/// failure.
Fault moveInto(const fs::path& made, const fs::path& folder) {
    std::error_code failed;
    std::error_code ignored;
    if (!fs::exists(folder, failed)) {
        fs::rename(made, folder, failed);
        return faultOf(folder, failed);
    }
    if (exchange(made, folder)) return std::nullopt;
    const TemporaryFolder former(siblingOf(folder, ".old-"));
    fs::rename(folder, former.path(), failed);
    if (failed) return faultOf(folder, failed);
    fs::rename(made, folder, failed);
    if (failed) fs::rename(former.path(), folder, ignored);
    return faultOf(folder, failed);
}

Fault replaceFolder(const OutputFiles& files, const fs::path& folder) {
    std::error_code failed;
    fs::create_directories(folder.parent_path(), failed);
    if (failed) return faultOf(folder.parent_path(), failed);
    const TemporaryFolder made(siblingOf(folder, ".new-"));
    if (auto fault = writeAll(files, made.path(), folder)) {
        // The author knows nothing of the temporary folder.
        fault->path = folder / fault->path.lexically_relative(made.path());
        return fault;
    }
    return moveInto(made.path(), folder);
}

void report(const WriteFault& fault, Diagnostics& diagnostics) {
    const SourcePlace place{fault.path.generic_string()};
    if (fault.reason == std::errc::no_space_on_device) {
        diagnostics.error(place, say::diskIsFull);
    } else if (fault.reason == std::errc::permission_denied ||
               fault.reason == std::errc::read_only_file_system) {
        diagnostics.error(place, say::mayNotBeWritten);
    } else {
        diagnostics.error(place, say::cannotBeWritten, {fault.reason.message()});
    }
}

}  // namespace

bool writeDataFolder(const OutputFiles& files, const fs::path& folder, Diagnostics& diagnostics) {
    std::error_code failed;
    fs::path target = fs::weakly_canonical(fs::absolute(folder, failed), failed);
    if (!target.has_filename()) target = target.parent_path();
    if (!failed && !mayReplace(target)) {
        diagnostics.error({folder.generic_string()}, say::isNoDataFolder);
        return false;
    }
    const Fault fault = failed ? faultOf(folder, failed) : replaceFolder(files, target);
    if (fault) report(*fault, diagnostics);
    return !fault;
}

}  // namespace contentc
