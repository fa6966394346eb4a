#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "platform/files/FolderLock.h"

namespace platform {
class FileSystem;
}

namespace kalyxo {

/// Where the cache folder lies.
struct CacheLocation {
    std::string folder;  ///< ends with a backslash
    bool removeAtEnd = false;
};

/// The cache folder lies in the program folder. When the program runs outside its installed folder, it lies
/// in the temporary folder and is removed at the end.
CacheLocation LocateCache(std::string_view programFolder, std::string_view tempFolder,
                          bool outsideInstallFolder);

/// The folder of prepared pages: its numbered files, the redirect page, and their deletion.
class PageCache {
  public:
    explicit PageCache(const platform::FileSystem& files) : m_files(files) {}

    /// Creates the folder; a failure shows with the first page. What a former program left half written there
    /// goes. While another program uses the folder, this one uses a folder with a number behind the name,
    /// which is removed at the end.
    void Open(CacheLocation location);

    const std::string& Folder() const { return m_location.folder; }
    /// Path for the next prepared page.
    std::string NextTarget();
    /// Writes the page that sends the browser on to `target`; its path, empty when it cannot be written.
    std::string WriteRedirect(std::string_view target) const;

    /// Deletes all but the twenty newest pages; at the end everything that was written.
    void CleanCache(bool final);

    int NextNumber() const { return m_nNext; }
    int OldestNumber() const { return m_nOldest; }

  private:
    /// Makes it the cache folder unless another program has it.
    bool take(const CacheLocation& location);
    std::string numbered(int number) const;
    std::string redirectPath() const;
    void deletePagesBelow(int limit);

    const platform::FileSystem& m_files;
    CacheLocation m_location;
    std::optional<platform::FolderLock> m_lock;
    int m_nNext = 1;
    int m_nOldest = 1;
};

}  // namespace kalyxo
