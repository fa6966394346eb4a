#pragma once

#include <cstdint>
#include <span>
#include <string_view>

namespace formats {

/// One of the seven sections of the content.
struct Section {
    /// 1 to 7, as stored in index files and bookmarks.
    std::int16_t code;
    /// The section's page title file is `<key>.dat`.
    std::string_view key;
    /// Shown to the reader; code page 1253.
    std::string_view displayName;
    /// Page number (and page id) of the section's start page.
    std::int32_t startPage;
};

/// The sections in the order of their codes.
std::span<const Section, 7> sectionTable();

/// The section with this code, null when there is none.
const Section* sectionByCode(std::int16_t code);

/// The section with this key, null when there is none; compared byte by byte.
const Section* sectionByKey(std::string_view key);

/// Whether a page counts as a start page: the start page of a section, or a page whose number is a multiple
/// of 10000. The program opens such a page itself when it returns to it, without asking the browse selection.
bool isStartPage(std::int32_t pageId);

}  // namespace formats
