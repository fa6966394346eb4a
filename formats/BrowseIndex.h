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
inline constexpr std::string_view browseIndexFile = "select.ndx";

/// A sub-page of a topic. Its item code is also its page number.
struct BrowseEntry {
    std::int32_t itemCode = 0;
    /// Code page 1253, at most `maxSectionTitle` bytes.
    std::string title;

    bool operator==(const BrowseEntry&) const = default;
};

/// A topic of a section. The entries are in the order of display.
struct BrowseTopic {
    std::int32_t pageId = 0;
    std::int32_t pageNumber = 0;
    /// Code page 1253, at most `maxSectionTitle` bytes.
    std::string title;
    std::vector<BrowseEntry> entries;

    bool operator==(const BrowseTopic&) const = default;
};

/// A section. The topics are in the order of display; a start page comes first, and its page id is
/// `Section::startPage`.
struct BrowseSection {
    std::int16_t code = 0;
    std::vector<BrowseTopic> topics;

    bool operator==(const BrowseSection&) const = default;
};

/// All that the browse selection lists.
struct BrowseIndex {
    /// At most one for each section code.
    std::vector<BrowseSection> sections;

    bool operator==(const BrowseIndex&) const = default;
};

/// The place of an entry in the index.
struct BrowseEntryPlace {
    const BrowseSection* section;
    const BrowseTopic* topic;
    const BrowseEntry* entry;
};

/// The section with this code; null when the index does not have it.
const BrowseSection* findSection(const BrowseIndex& index, std::int16_t code);

/// The first topic with this page id in the section; null when there is none.
const BrowseTopic* findTopic(const BrowseSection& section, std::int32_t pageId);

/// The first topic with this page id in any section; null when there is none. An id without a topic may be
/// the item code of an entry: the periodic table's index uses such ids for the pages of elements.
const BrowseTopic* findTopic(const BrowseIndex& index, std::int32_t pageId);

/// The first entry with this item code in any section; nothing when there is none.
std::optional<BrowseEntryPlace> findEntry(const BrowseIndex& index, std::int32_t itemCode);

/// Decodes the file image. Nothing when it is damaged in any way: wrong magic or version, a size that does
/// not fit the counts, a title outside the text block, a number out of range, a section twice.
std::optional<BrowseIndex> decodeBrowseIndex(std::string_view image);

/// The file image of the index. Nothing when `decodeBrowseIndex` would refuse it.
std::optional<std::string> encodeBrowseIndex(const BrowseIndex& index);

/// The image of one section's page title file `<key>.dat`.
struct SectionTitleFile {
    std::int16_t sectionCode;
    std::string_view image;
};

/// An index made from the page title files, for use without `select.ndx`: each page becomes a topic without
/// entries, in the order of the files. Records without a valid page number and files without a section are
/// left out.
BrowseIndex browseIndexFromTitles(std::span<const SectionTitleFile> files);

}  // namespace formats
