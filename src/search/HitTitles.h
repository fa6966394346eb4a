#pragma once

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>

#include "platform/files/BinaryFile.h"
#include "platform/files/FileSystem.h"
#include "src/search/SearchHit.h"

namespace kalyxo {

/// What the result list shows for a hit; code page 1253.
struct HitTexts {
    std::string name;      ///< the entry, or the page where the hit is the page itself
    std::string topic;     ///< the section
    std::string subgroup;  ///< the page that holds the entry; empty for a page

    // NOLINTNEXTLINE(modernize-use-nullptr): taken for a null pointer
    friend auto operator<=>(const HitTexts&, const HitTexts&) = default;
};

/// Names the hits of one search run from the title files of the data folder. Each file is opened once, so an
/// object is for one run.
class HitTitles {
  public:
    /// The data folder ends with a backslash; `files` must outlive the object.
    HitTitles(const platform::FileSystem& files, std::string dataFolder);

    /// The title of the first record with this page id in `<key>.dat`; empty when there is none.
    std::string LookUpPageTitle(std::string_view key, std::int32_t pageId);

    /// The title of an entry; "?" when its code names no list, or its list no such entry.
    std::string LookUpEntryTitle(std::int32_t itemCode);

    /// The texts of a hit; nothing for a hit of no section.
    std::optional<HitTexts> MakeHitTexts(const SearchHit& hit);

  private:
    using PageTitles = std::unordered_map<std::int32_t, std::string>;

    const PageTitles& pageTitles(std::string_view key);
    const std::optional<platform::BinaryFile>& titleList(std::string_view fileName);

    const platform::FileSystem& m_files;
    std::string m_dataFolder;
    std::map<std::string, PageTitles, std::less<>> m_pageTitles;
    std::map<std::string, std::optional<platform::BinaryFile>, std::less<>> m_titleLists;
};

}  // namespace kalyxo
