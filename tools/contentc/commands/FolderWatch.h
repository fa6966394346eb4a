#pragma once

#include <chrono>
#include <filesystem>
#include <span>
#include <vector>

namespace contentc {

/// Tells when something below some folders changes.
class FolderWatch {
  public:
    /// What happens in the folder `except` and in hidden ones does not count.
    FolderWatch(std::vector<std::filesystem::path> folders, std::filesystem::path except);
    ~FolderWatch();
    FolderWatch(const FolderWatch&) = delete;
    FolderWatch& operator=(const FolderWatch&) = delete;

    /// Whether changes can be followed.
    bool isWatching() const { return watches_ > 0; }
    /// Waits for a change, and then until all is quiet for a moment, since programs save in several steps.
    /// Whether there was one before the time was over.
    bool waitForChange(std::chrono::milliseconds atMost);

  private:
    void watchAll();
    void watchBelow(const std::filesystem::path& folder);
    bool isIgnored(const std::filesystem::path& path) const;
    bool hasChange(std::chrono::milliseconds atMost) const;
    bool takeChanges() const;

    std::vector<std::filesystem::path> folders_;
    std::filesystem::path except_;
    int queue_;
    std::size_t watches_ = 0;
};

}  // namespace contentc
