#pragma once

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <optional>
#include <span>
#include <string_view>

#include "platform/files/FileHandle.h"
#include "platform/files/FileSystem.h"

namespace platform {

/// A file open for reading, byte for byte. Unbuffered: read many records at once rather than one at a time.
class BinaryFile {
  public:
    /// Opens a file by DOS path; nothing when there is none or it is not a regular file.
    static std::optional<BinaryFile> open(const FileSystem& files, std::string_view dosPath);
    /// The same by host path.
    static std::optional<BinaryFile> open(const std::filesystem::path& path);

    /// The length in bytes when the file was opened.
    std::uint64_t size() const { return size_; }

    /// Reads at an offset from the start and returns how many bytes that gave: fewer than asked for at the
    /// end of the file or on a read error. The place of `read` stays.
    std::size_t readAt(std::uint64_t offset, std::span<std::byte> target) const;

    /// Reads where the last `read` ended; returns as `readAt` does.
    std::size_t read(std::span<std::byte> target);

  private:
    BinaryFile(FileHandle file, std::uint64_t size);
    static std::optional<BinaryFile> open(FileHandle file);

    FileHandle file_;
    std::uint64_t size_ = 0;
    std::uint64_t position_ = 0;
};

}  // namespace platform
