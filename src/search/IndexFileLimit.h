#pragma once

#include <cstddef>

namespace kalyxo {

/// The longest index file that is read whole into memory, room for a million words; a longer one counts as
/// one that cannot be read.
inline constexpr std::size_t kMaxIndexFileBytes = std::size_t{32} << 20;

}  // namespace kalyxo
