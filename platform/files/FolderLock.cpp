#include "platform/files/FolderLock.h"

#include <sys/file.h>
#include <sys/stat.h>

#include <cerrno>
#include <utility>

namespace platform {

namespace {

namespace fs = std::filesystem;

/// Whether another program holds the lock. On a host that cannot lock, nobody does.
bool heldByAnother(const FileHandle& folder, int operation) {
    int result = -1;
    do {
        result = ::flock(folder.descriptor(), operation);
    } while (result != 0 && errno == EINTR);
    return result != 0 && errno == EWOULDBLOCK;
}

bool standsAt(const FileHandle& folder, const fs::path& path) {
    struct stat opened{};
    struct stat there{};
    return ::fstat(folder.descriptor(), &opened) == 0 && ::stat(path.c_str(), &there) == 0 &&
           opened.st_ino == there.st_ino && opened.st_dev == there.st_dev;
}

}  // namespace

std::optional<FolderLock> FolderLock::wait(const fs::path& folder) {
    FileHandle handle = FileHandle::openForLocking(folder.string());
    if (!handle || heldByAnother(handle, LOCK_EX)) return std::nullopt;
    return FolderLock(std::move(handle));
}

std::optional<FolderLock> FolderLock::tryNow(const fs::path& folder) {
    FileHandle handle = FileHandle::openForLocking(folder.string());
    if (!handle || heldByAnother(handle, LOCK_EX | LOCK_NB) || !standsAt(handle, folder)) return std::nullopt;
    return FolderLock(std::move(handle));
}

}  // namespace platform
