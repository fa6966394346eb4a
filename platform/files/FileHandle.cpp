#include "platform/files/FileHandle.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>

namespace platform {

namespace {

constexpr mode_t newFileMode = 0666;

int openRetrying(const std::string& path, int flags) {
    int descriptor = -1;
    do {
        descriptor = ::open(path.c_str(), flags | O_CLOEXEC, newFileMode);
    } while (descriptor < 0 && errno == EINTR);
    return descriptor;
}

}  // namespace

FileHandle::~FileHandle() { close(); }

FileHandle FileHandle::openForReading(const std::string& path) {
    return FileHandle(openRetrying(path, O_RDONLY));
}

FileHandle FileHandle::openForWriting(const std::string& path, bool create) {
    return FileHandle(openRetrying(path, O_WRONLY | O_TRUNC | (create ? O_CREAT : 0)));
}

FileHandle FileHandle::createNew(const std::string& path) {
    return FileHandle(openRetrying(path, O_WRONLY | O_CREAT | O_EXCL));
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

bool FileHandle::sync() { return ::fsync(descriptor_) == 0; }

bool FileHandle::close() {
    if (descriptor_ < 0) return true;
    return ::close(std::exchange(descriptor_, -1)) == 0;
}

}  // namespace platform
