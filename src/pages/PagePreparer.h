#pragma once

#include <string>
#include <string_view>

#include "platform/files/ProgressStep.h"

namespace platform {
class FileSystem;
}

namespace kalyxo {

/// How preparing a page ended.
enum class PrepareResult { prepared, noSource, noTarget };

/// What a prepared page holds.
struct PageContents {
    bool video = false;
    bool molecule = false;
};

/// Rewrites content pages into the cache folder: data-folder placeholders become paths, glossary terms links,
/// link colours are set, videos and molecules are noted and their enlarged pages written.
class PagePreparer {
  public:
    /// Both folders end with a backslash.
    PagePreparer(const platform::FileSystem& files, std::string dataFolder, std::string cacheFolder);

    /// Writes the page `source` as `target`, as far as `step` lets it; one that gets far larger than
    /// any real page counts as one that cannot be written. `contents` is set only when the page was prepared.
    PrepareResult PreparePage(const std::string& source, const std::string& target, PageContents& contents,
                              const platform::ProgressStep& step = {}) const;

  private:
    const platform::FileSystem& m_files;
    std::string m_strDataFolder;
    std::string m_strCacheFolder;
};

}  // namespace kalyxo
