#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

namespace controls::dataanalyser {

/// A place in the analyser's memory as its state carries it: the number of a block that the analyser keeps,
/// never an address. 0 is no place.
using Location = std::int32_t;
inline constexpr Location entriesLocation = 1;
inline constexpr Location selectionLocation = 2;
inline constexpr Location firstHostLocation = 3;

/// The two blocks of the analyser's state, each with what was put in last, and the blocks that a host handed
/// over last; see README.md for the bytes.
class StateBlocks {
  public:
    /// Notes the words of the entries.
    Location keepEntries(std::span<const std::int32_t> words);
    /// Notes the selected rows.
    Location keepSelection(std::span<const std::int16_t> ids);
    /// Keeps a copy of a host's block until two more have come.
    Location keepHosts(std::span<const std::byte> bytes);

    /// The bytes at a location; empty when nothing is there.
    std::span<const std::byte> at(Location location) const;

    /// The words of entries told by a block; none when it is no such block.
    std::vector<std::int32_t> entries(Location location) const;
    /// The rows told by the first `size` bytes at a location.
    std::vector<std::int16_t> selection(Location location, std::int32_t size) const;

  private:
    std::vector<std::byte> entries_;
    std::vector<std::byte> selection_;
    std::array<std::vector<std::byte>, 2> hosts_;
    std::size_t nextHost_ = 0;
};

}  // namespace controls::dataanalyser
