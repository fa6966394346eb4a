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

/// The texts of a hit in the result list, in code page 1253.
struct HitTexts {
    std::string name;      ///< the title of the entry, or of the page when the hit is a page
    std::string topic;     ///< the name of the section
    std::string subgroup;  ///< the title of the page with the entry; empty when the hit is a page

    // NOLINTNEXTLINE(modernize-use-nullptr): taken for a null pointer
    friend auto operator<=>(const HitTexts&, const HitTexts&) = default;
};

/// Finds the titles of hits in the title files of the data folder. An object opens each file once, so it
/// serves one search run.
class HitTitles {
  public:
    /// The data folder ends with a backslash; `files` must outlive the object.
    HitTitles(const platform::FileSystem& files, std::string dataFolder);

    /// The title of the first record with this page id in `<key>.dat`, empty when there is none.
    std::string LookUpPageTitle(std::string_view key, std::int32_t pageId);

    /// The title of an entry, "?" when there is no such list or entry.
    std::string LookUpEntryTitle(std::int32_t itemCode);

    /// The texts of a hit. Nothing when its section does not exist.
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
