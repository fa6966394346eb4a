#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "formats/BrowseIndex.h"
#include "platform/files/FileSystem.h"

namespace controls::select {

/// Reads the files of the data folder for the browse selection. Each call opens and closes its files.
class BrowseFolder {
  public:
    /// `files` must outlive the object; `folder` is a DOS path that ends with a backslash.
    BrowseFolder(const platform::FileSystem& files, std::string folder);

    /// Reads the index. When its file is missing or damaged, the index is made of the sections' title files.
    formats::BrowseIndex readIndex() const;

    /// The title of a page in the title files, of which that of `section` comes first; empty when none has
    /// it.
    std::string pageTitle(std::int16_t section, std::int32_t pageId) const;

    /// The title of an entry in its title list, empty when there is no such list or entry.
    std::string entryTitle(std::int32_t itemCode) const;

  private:
    std::string path(std::string_view name) const;
    formats::BrowseIndex readTitleFiles() const;
    std::string readTitleFile(std::string_view sectionKey) const;
    std::string titleIn(std::string_view sectionKey, std::int32_t pageId) const;

    const platform::FileSystem& files_;
    std::string folder_;
};

}  // namespace controls::select
