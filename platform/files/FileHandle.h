#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

#include "platform/files/ProgressStep.h"

namespace platform {

/// An open file of the host system, closed when the object goes. Paths are host paths.
class FileHandle {
  public:
    FileHandle() = default;
    FileHandle(FileHandle&& other) noexcept : descriptor_(std::exchange(other.descriptor_, -1)) {}
    FileHandle& operator=(FileHandle&& other) noexcept {
        std::swap(descriptor_, other.descriptor_);
        return *this;
    }
    FileHandle(const FileHandle&) = delete;
    FileHandle& operator=(const FileHandle&) = delete;
    ~FileHandle();

    /// Opens an existing regular file for reading. A closed handle when that fails, or when something else
    /// has that name (a folder, a pipe, a device); never waits for one.
    static FileHandle openForReading(const std::string& path);

    /// What finds out whether a file really lies below a folder: the host while it opens the file or, where
    /// the host cannot, the real paths of both once it is open.
    enum class BeneathBy { host, realPath };

    /// The same for a path below a folder: the file must really lie there, so a symbolic link or `..` that
    /// leads out of the folder gives a closed handle. The folder itself may be a link.
    static FileHandle openBeneath(const std::string& folder, const std::string& relativePath,
                                  BeneathBy by = BeneathBy::host);

    /// Opens a file for writing and empties it; creates a missing one only when `create` says so. A closed
    /// handle when that fails; never waits for the other end of a pipe.
    static FileHandle openForWriting(const std::string& path, bool create);

    /// Opens a file for writing and leaves what it holds; creates a missing one. A closed handle when that
    /// fails; never waits for the other end of a pipe.
    static FileHandle openForOverwriting(const std::string& path);

    /// Opens what has that name, in most cases a folder, to lock it and not to read it; a closed handle when
    /// that fails.
    static FileHandle openForLocking(const std::string& path);

    /// Creates a file that must not exist yet; a closed handle when that fails.
    static FileHandle createNew(const std::string& path);

    explicit operator bool() const { return descriptor_ >= 0; }

    /// Reads up to `size` bytes where the last read ended; 0 at the end of the file, nothing on failure.
    std::optional<std::size_t> read(void* buffer, std::size_t size);

    /// Reads on to the end of the file, `limit` bytes at most; nothing on failure, or when `step` has
    /// cancelled it.
    std::optional<std::string> readAll(std::size_t limit, const ProgressStep& step = {});

    /// Writes all bytes; false when that fails at any of them.
    bool write(const void* bytes, std::size_t size);

    /// Writes these bytes in the place of all that the file holds; false when that fails. On a full disk the
    /// former bytes stay, with or without others behind them.
    bool overwrite(std::string_view bytes);

    /// Makes sure that what was written has reached the medium.
    bool sync();

    /// Closes the file; false when the host reports a late write error. A closed handle stays closed, with
    /// true.
    bool close();

    /// The length of the file in bytes; 0 when the host does not tell.
    std::uint64_t size() const;

    /// The host's file descriptor, −1 when closed.
    int descriptor() const { return descriptor_; }

  private:
    explicit FileHandle(int descriptor) : descriptor_(descriptor) {}

    static FileHandle openByRealPath(const FileHandle& root, const std::string& path);
    FileHandle onlyIfRegular() &&;
    bool reserve(std::size_t size);
    bool liesBelow(const FileHandle& folder) const;

    int descriptor_ = -1;
};

}  // namespace platform
