#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace formats {

/// Size of one record of a page title file `<key>.dat`.
inline constexpr std::size_t sectionTitleRecordSize = 112;
/// The maximum length of a page title in bytes, without its NUL.
inline constexpr std::size_t maxSectionTitle = 107;

/// The title of one page of a section.
struct SectionTitleRecord {
    /// Code page 1253, at most `maxSectionTitle` bytes, no NUL.
    std::string title;
    std::int32_t pageId = 0;

    bool operator==(const SectionTitleRecord&) const = default;
};

/// Decodes the first record of `bytes`; a title without NUL is cut at the end of its field. Nothing when
/// `bytes` is shorter than a record.
std::optional<SectionTitleRecord> decodeSectionTitle(std::string_view bytes);

/// Decodes a whole page title file; a partial last record is ignored.
std::vector<SectionTitleRecord> decodeSectionTitles(std::string_view image);

/// The file image of a page title file. Nothing when a title does not fit its field or contains a NUL.
std::optional<std::string> encodeSectionTitles(std::span<const SectionTitleRecord> records);

}  // namespace formats
