#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace formats {

/// Name of the periodic table's index in the data folder.
inline constexpr std::string_view elementIndexFile = "ptable.ndx";
/// Size of one record on disk; the records are packed.
inline constexpr std::size_t elementPageRecordSize = 5;

/// The page of an element of the periodic table, in the section `elemcomp`.
struct ElementPageRecord {
    /// The element's key: its atomic number.
    std::uint8_t elementKey = 0;
    std::int32_t pageId = 0;

    bool operator==(const ElementPageRecord&) const = default;
};

/// Decodes the whole file; a partial last record is ignored.
std::vector<ElementPageRecord> decodeElementIndex(std::string_view image);

/// The file image of the index.
std::string encodeElementIndex(std::span<const ElementPageRecord> records);

}  // namespace formats
