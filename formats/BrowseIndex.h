#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "formats/SectionTitles.h"

namespace formats {

/// Name of the browse selection's index in the data folder.
inline constexpr std::string_view kBrowseIndexFile = "select.ndx";

/// A sub-page of a topic. Its item code is its page number too.
struct BrowseEntry {
    std::int32_t itemCode = 0;
    /// Code page 1253, at most `kMaxSectionTitle` bytes.
    std::string title;

    bool operator==(const BrowseEntry&) const = default;
};

/// A topic of a section, with its entries in display order.
struct BrowseTopic {
    std::int32_t pageId = 0;
    std::int32_t pageNumber = 0;
    /// Code page 1253, at most `kMaxSectionTitle` bytes.
    std::string title;
    std::vector<BrowseEntry> entries;

    bool operator==(const BrowseTopic&) const = default;
};

/// A section with its topics in display order. The start page, where the section has one, comes first; its
/// page id is `Section::startPage`.
struct BrowseSection {
    std::int16_t code = 0;
    std::vector<BrowseTopic> topics;

    bool operator==(const BrowseSection&) const = default;
};

/// What the reader can choose from: everything that the browse selection lists.
struct BrowseIndex {
    /// At most one for each section code.
    std::vector<BrowseSection> sections;

    bool operator==(const BrowseIndex&) const = default;
};

/// Where an entry stands in the index.
struct BrowseEntryPlace {
    const BrowseSection* section;
    const BrowseTopic* topic;
    const BrowseEntry* entry;
};

/// Null when the index does not have the section.
const BrowseSection* findSection(const BrowseIndex& index, std::int16_t code);

/// The first topic with that page id in the section; null when there is none.
const BrowseTopic* findTopic(const BrowseSection& section, std::int32_t pageId);

/// The first topic with that page id in any section; null when there is none. A page id that no topic has may
/// be the item code of an entry: the periodic table's index names the pages of elements in that way.
const BrowseTopic* findTopic(const BrowseIndex& index, std::int32_t pageId);

/// The first entry with that item code in any section.
std::optional<BrowseEntryPlace> findEntry(const BrowseIndex& index, std::int32_t itemCode);

/// Decodes the file image. Nothing when it is damaged in any way: wrong magic or version, a size that does
/// not fit the counts, a title outside the text block, a number out of range, a section twice.
std::optional<BrowseIndex> decodeBrowseIndex(std::string_view image);

/// The file image of the index. Nothing when `decodeBrowseIndex` would not take it back.
std::optional<std::string> encodeBrowseIndex(const BrowseIndex& index);

/// The image of one section's page title file `<key>.dat`.
struct SectionTitleFile {
    std::int16_t sectionCode;
    std::string_view image;
};

/// Makes do without `select.ndx`: the pages of the title files become topics without entries, in file order.
/// Records whose page id is no page number are left out, and so are files of no section.
BrowseIndex browseIndexFromTitles(std::span<const SectionTitleFile> files);

}  // namespace formats
