#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace formats {

/// Size of one record of a title list `*.ttl`.
inline constexpr std::size_t titleListRecordSize = 60;
/// The maximum length of an entry title in bytes, without its NUL.
inline constexpr std::size_t maxEntryTitle = 59;
/// An item code is list number × this + entry number.
inline constexpr std::int32_t entriesPerList = 10'000;

/// The file with the entry titles of a list. Several lists may share a file; their entries then have one
/// numbering.
struct TitleList {
    std::int32_t listNumber;
    std::string_view fileName;
};

/// All list numbers that have a file, ascending.
std::span<const TitleList> titleListTable();

/// The file name of a list (`elem.ttl`, …). Nothing when the list has no file.
std::optional<std::string_view> titleListFile(std::int32_t listNumber);

/// The two parts of an item code; a negative code is divided towards zero.
constexpr std::int32_t listNumberOf(std::int32_t itemCode) { return itemCode / entriesPerList; }
constexpr std::int32_t entryNumberOf(std::int32_t itemCode) { return itemCode % entriesPerList; }

/// The offset of the record of entry `entryNumber` (from 1) in its list. Nothing for numbers below 1.
std::optional<std::size_t> titleListOffset(std::int32_t entryNumber);

/// The title in the first record of `bytes`; a title without NUL is cut at the end of its field. Nothing when
/// `bytes` is shorter than a record.
std::optional<std::string> decodeEntryTitle(std::string_view bytes);

/// The title of entry `entryNumber` (counted from 1) of a whole title list. Nothing when the list has no such
/// whole record.
std::optional<std::string> entryTitle(std::string_view image, std::int32_t entryNumber);

/// The file image of a title list: title i becomes entry i + 1. Nothing when a title does not fit its field
/// or contains a NUL.
std::optional<std::string> encodeTitleList(std::span<const std::string> titles);

}  // namespace formats
