#include "platform/files/BinaryFile.h"

#include <unistd.h>

#include <cerrno>
#include <limits>

namespace platform {

BinaryFile::BinaryFile(FileHandle file, std::uint64_t size) : file_(std::move(file)), size_(size) {}

std::optional<BinaryFile> BinaryFile::open(FileHandle file) {
    if (!file) return std::nullopt;
    const std::uint64_t size = file.size();
    return BinaryFile(std::move(file), size);
}

std::optional<BinaryFile> BinaryFile::open(const FileSystem& files, std::string_view dosPath) {
    return open(files.openForReading(dosPath));
}

std::optional<BinaryFile> BinaryFile::open(const std::filesystem::path& path) {
    return open(FileHandle::openForReading(path));
}

std::size_t BinaryFile::readAt(std::uint64_t offset, std::span<std::byte> target) const {
    std::size_t done = 0;
    while (done < target.size()) {
        if (offset + done > static_cast<std::uint64_t>(std::numeric_limits<off_t>::max())) break;
        const auto got = ::pread(file_.descriptor(), target.data() + done, target.size() - done,
                                 static_cast<off_t>(offset + done));
        if (got < 0 && errno == EINTR) continue;
        if (got <= 0) break;
        done += static_cast<std::size_t>(got);
    }
    return done;
}

std::size_t BinaryFile::read(std::span<std::byte> target) {
    const std::size_t got = readAt(position_, target);
    position_ += got;
    return got;
}

}  // namespace platform
