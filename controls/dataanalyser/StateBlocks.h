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
inline constexpr Location entryCountLocation = 1;
inline constexpr Location selectionLocation = 2;
inline constexpr Location firstHostLocation = 3;

/// The two blocks of the analyser's state, each with what was put in last, and the blocks that a host handed
/// over last; see README.md for the bytes.
class StateBlocks {
  public:
    /// Notes the columns; each has one entry.
    Location keepColumns();
    /// Notes the selected elements.
    Location keepSelection(std::span<const int> numbers);

    /// Keeps a copy of a host's block until two more have come.
    Location keepHosts(std::span<const std::byte> bytes);

    /// The bytes at a location; empty when nothing is there.
    std::span<const std::byte> at(Location location) const;

    /// Whether the location tells of the columns that this analyser has.
    bool tellsOurColumns(Location location) const;
    /// The elements told by the first `count` bytes at a location; bytes that are no element are passed over.
    std::vector<int> selection(Location location, std::int32_t count) const;

  private:
    std::vector<std::byte> entryCount_;
    std::vector<std::byte> selection_;
    std::array<std::vector<std::byte>, 2> hosts_;
    std::size_t nextHost_ = 0;
};

}  // namespace controls::dataanalyser
