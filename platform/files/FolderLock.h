#pragma once

#include <filesystem>
#include <optional>
#include <utility>

#include "platform/files/FileHandle.h"

namespace platform {

/// A lock on a folder, held while the object lives. Only programs that ask for the lock are kept out. It
/// leaves nothing in the folder, and ends with the process, however that ends. Where the host cannot lock,
/// everyone gets it.
class FolderLock {
  public:
    /// Waits until no other program holds the lock; nothing when the folder cannot be opened.
    static std::optional<FolderLock> wait(const std::filesystem::path& folder);

    /// Nothing when another program holds the lock, has removed the folder meanwhile, or it cannot be opened.
    static std::optional<FolderLock> tryNow(const std::filesystem::path& folder);

  private:
    explicit FolderLock(FileHandle folder) : folder_(std::move(folder)) {}

    FileHandle folder_;
};

}  // namespace platform
