#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

namespace controls::dataanalyser {

/// The number by which the state of the analyser names a block of bytes that it keeps. It is no address. 0
/// names no block.
using Location = std::int32_t;
inline constexpr Location entriesLocation = 1;
inline constexpr Location selectionLocation = 2;
inline constexpr Location firstHostLocation = 3;

/// The blocks of bytes that the analyser keeps: its entries, its selected rows, and the last two blocks from
/// its host. README.md describes their bytes.
class StateBlocks {
  public:
    /// Keeps the words of the entries.
    Location keepEntries(std::span<const std::int32_t> words);
    /// Keeps the selected rows.
    Location keepSelection(std::span<const std::int16_t> ids);
    /// Keeps a copy of a block from the host. It is lost when the host has given two further blocks.
    Location keepHosts(std::span<const std::byte> bytes);

    /// The bytes of a block, empty when there is no such block.
    std::span<const std::byte> at(Location location) const;

    /// The words in a block of entries, empty when the block is of another form.
    std::vector<std::int32_t> entries(Location location) const;
    /// The rows in the first `size` bytes of a block.
    std::vector<std::int16_t> selection(Location location, std::int32_t size) const;

  private:
    std::vector<std::byte> entries_;
    std::vector<std::byte> selection_;
    std::array<std::vector<std::byte>, 2> hosts_;
    std::size_t nextHost_ = 0;
};

}  // namespace controls::dataanalyser
