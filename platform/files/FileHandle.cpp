#include "platform/files/FileHandle.h"

#include <fcntl.h>
#include <linux/openat2.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <climits>

namespace platform {

namespace {

constexpr mode_t newFileMode = 0666;

/// A pipe or device in place of a file is opened without waiting for its other end.
constexpr int commonFlags = O_CLOEXEC | O_NONBLOCK | O_NOCTTY;

/// Calls `open` until no signal interrupts it.
template <typename Open>
int retrying(Open open) {
    int descriptor = -1;
    do {
        descriptor = static_cast<int>(open());
    } while (descriptor < 0 && errno == EINTR);
    return descriptor;
}

int openRetrying(const std::string& path, int flags) {
    return retrying([&] { return ::open(path.c_str(), flags | commonFlags, newFileMode); });
}

/// Fails with ENOSYS or EPERM on a host that does not have this way of opening.
int openInside(int folder, const std::string& relativePath) {
    open_how how{};
    how.flags = O_RDONLY | commonFlags;
    how.resolve = RESOLVE_BENEATH | RESOLVE_NO_MAGICLINKS;
    return retrying([&] { return ::syscall(SYS_openat2, folder, relativePath.c_str(), &how, sizeof how); });
}

/// The path of an open file or folder without any links; empty when the host does not tell.
std::string realPath(int descriptor) {
    std::array<char, PATH_MAX> path{};
    const std::string link = "/proc/self/fd/" + std::to_string(descriptor);
    const ssize_t length = ::readlink(link.c_str(), path.data(), path.size());
    return length > 0 ? std::string(path.data(), static_cast<std::size_t>(length)) : std::string();
}

}  // namespace

FileHandle::~FileHandle() { close(); }

/// Asked of the open file, since the name may lead to another one by now.
FileHandle FileHandle::onlyIfRegular() && {
    struct stat found = {};
    if (::fstat(descriptor_, &found) != 0 || !S_ISREG(found.st_mode)) close();
    return std::move(*this);
}

bool FileHandle::liesBelow(const FileHandle& folder) const {
    const std::string above = realPath(folder.descriptor_);
    if (above.empty()) return false;
    return realPath(descriptor_).starts_with(above.ends_with('/') ? above : above + '/');
}

FileHandle FileHandle::openForReading(const std::string& path) {
    return FileHandle(openRetrying(path, O_RDONLY)).onlyIfRegular();
}

FileHandle FileHandle::openByRealPath(const FileHandle& root, const std::string& path) {
    FileHandle file = openForReading(path);
    if (file && !file.liesBelow(root)) file.close();
    return file;
}

FileHandle FileHandle::openBeneath(const std::string& folder, const std::string& relativePath, BeneathBy by) {
    const FileHandle root(openRetrying(folder, O_RDONLY | O_DIRECTORY));
    if (!root) return {};
    const std::string path = folder + '/' + relativePath;
    if (by == BeneathBy::realPath) return openByRealPath(root, path);
    FileHandle file(openInside(root.descriptor_, relativePath));
    const bool isUnknown = !file && (errno == ENOSYS || errno == EPERM);
    return isUnknown ? openByRealPath(root, path) : std::move(file).onlyIfRegular();
}

FileHandle FileHandle::openForWriting(const std::string& path, bool create) {
    return FileHandle(openRetrying(path, O_WRONLY | O_TRUNC | (create ? O_CREAT : 0)));
}

FileHandle FileHandle::openForOverwriting(const std::string& path) {
    return FileHandle(openRetrying(path, O_WRONLY | O_CREAT));
}

FileHandle FileHandle::createNew(const std::string& path) {
    return FileHandle(openRetrying(path, O_WRONLY | O_CREAT | O_EXCL));
}

FileHandle FileHandle::openForLocking(const std::string& path) {
    return FileHandle(openRetrying(path, O_RDONLY));
}

std::optional<std::size_t> FileHandle::read(void* buffer, std::size_t size) {
    ssize_t got = -1;
    do {
        got = ::read(descriptor_, buffer, size);
    } while (got < 0 && errno == EINTR);
    if (got < 0) return std::nullopt;
    return static_cast<std::size_t>(got);
}

std::uint64_t FileHandle::size() const {
    struct stat found = {};
    return ::fstat(descriptor_, &found) == 0 ? static_cast<std::uint64_t>(found.st_size) : 0;
}

std::optional<std::string> FileHandle::readAll(std::size_t limit, const ProgressStep& step) {
    constexpr std::size_t part = std::size_t{64} * 1024;
    const std::uint64_t total = step ? std::min<std::uint64_t>(size(), limit) : 0;
    std::string content;
    while (content.size() < limit) {
        const std::size_t before = content.size();
        if (!GoesOn(step, before, total)) return std::nullopt;
        content.resize(before + std::min(part, limit - before));
        const auto got = read(content.data() + before, content.size() - before);
        if (!got) return std::nullopt;
        content.resize(before + *got);
        if (*got == 0) break;
    }
    return content;
}

bool FileHandle::write(const void* bytes, std::size_t size) {
    const char* next = static_cast<const char*>(bytes);
    while (size > 0) {
        const ssize_t written = ::write(descriptor_, next, size);
        if (written < 0 && errno == EINTR) continue;
        if (written <= 0) return false;
        next += written;
        size -= static_cast<std::size_t>(written);
    }
    return true;
}

bool FileHandle::overwrite(std::string_view bytes) {
    return reserve(bytes.size()) && write(bytes.data(), bytes.size()) &&
           (size() <= bytes.size() || ::ftruncate(descriptor_, static_cast<off_t>(bytes.size())) == 0);
}

/// Makes sure that the medium has room for so many bytes; false when it has not. What cannot reserve room,
/// such as a device, counts as having it.
bool FileHandle::reserve(std::size_t size) {
    const std::uint64_t former = this->size();
    if (size <= former) return true;
    const int error =
        ::posix_fallocate(descriptor_, static_cast<off_t>(former), static_cast<off_t>(size - former));
    return error != ENOSPC && error != EDQUOT && error != EFBIG;
}

bool FileHandle::sync() { return ::fsync(descriptor_) == 0; }

bool FileHandle::close() {
    if (descriptor_ < 0) return true;
    return ::close(std::exchange(descriptor_, -1)) == 0;
}

}  // namespace platform
