#include "tools/contentc/DataFolderWriter.h"

#include <unistd.h>

#include <algorithm>
#include <fstream>
#include <system_error>
#include <utility>

namespace contentc {

using platform::Failure;
using platform::Result;

namespace {

namespace fs = std::filesystem;

Failure failureOf(const fs::path& path, const std::string& fault) {
    return {path.generic_string() + ": " + fault};
}

fs::path siblingOf(const fs::path& folder, const std::string& suffix) {
    fs::path sibling = folder;
    return sibling += suffix + std::to_string(::getpid());
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

Result<void> writeFile(const fs::path& path, const std::string& bytes) {
    std::error_code failed;
    fs::create_directories(path.parent_path(), failed);
    if (failed) return failureOf(path.parent_path(), failed.message());
    std::ofstream stream(path, std::ios::binary | std::ios::trunc);
    stream.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    stream.close();
    if (!stream) return failureOf(path, "cannot be written");
    return {};
}

Result<void> writeAll(const OutputFiles& files, const fs::path& folder) {
    for (const auto& [key, file] : files.files()) {
        auto written = writeFile(nativePath(folder, file.path), file.bytes);
        if (!written) return written;
    }
    return {};
}

/// Replacing a folder deletes its contents, so it must be empty or a data folder.
bool mayReplace(const fs::path& folder) {
    std::error_code failed;
    if (!fs::exists(fs::symlink_status(folder, failed))) return true;
    if (!fs::is_directory(folder, failed)) return false;
    return fs::is_empty(folder, failed) || fs::is_regular_file(folder / "a.htm", failed);
}

/// Puts the folder `made` in the place of `folder`. A former folder is removed last, or put back after a
/// failure.
Result<void> moveInto(const fs::path& made, const fs::path& folder) {
    const fs::path former = siblingOf(folder, ".old-");
    std::error_code failed;
    const bool hadFolder = fs::exists(folder, failed);
    if (hadFolder) fs::rename(folder, former, failed);
    if (failed) return failureOf(folder, failed.message());
    fs::rename(made, folder, failed);
    std::error_code ignored;
    if (!failed) {
        fs::remove_all(former, ignored);
        return {};
    }
    if (hadFolder) fs::rename(former, folder, ignored);
    return failureOf(folder, failed.message());
}

}  // namespace

Result<void> writeDataFolder(const OutputFiles& files, const fs::path& folder) {
    std::error_code failed;
    fs::path target = fs::weakly_canonical(fs::absolute(folder, failed), failed);
    if (failed) return failureOf(folder, failed.message());
    if (!target.has_filename()) target = target.parent_path();
    if (!mayReplace(target)) return failureOf(folder, "is in use by something other than a data folder");
    fs::create_directories(target.parent_path(), failed);
    if (failed) return failureOf(target.parent_path(), failed.message());

    const TemporaryFolder made(siblingOf(target, ".new-"));
    if (auto written = writeAll(files, made.path()); !written) return written;
    return moveInto(made.path(), target);
}

}  // namespace contentc
