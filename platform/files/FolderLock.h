#pragma once

#include <filesystem>
#include <optional>
#include <utility>

#include "platform/files/FileHandle.h"

namespace platform {

/// The word of a program that a folder is its own for the time being. Binds only those who ask for it as
/// well; leaves no trace in the folder, and ends with the process, however that ends. Where the host cannot
/// lock, all may have it.
class FolderLock {
  public:
    /// Waits until no other has the folder; nothing when it cannot be opened.
    static std::optional<FolderLock> wait(const std::filesystem::path& folder);

    /// Nothing when another has the folder, has removed it meanwhile, or it cannot be opened.
    static std::optional<FolderLock> tryNow(const std::filesystem::path& folder);

  private:
    explicit FolderLock(FileHandle folder) : folder_(std::move(folder)) {}

    FileHandle folder_;
};

}  // namespace platform
