#pragma once

#include <cstddef>

namespace kalyxo {

/// The size of the longest index file that is read. It has room for a million words. A longer file counts as
/// one that cannot be read.
inline constexpr std::size_t kMaxIndexFileBytes = std::size_t{32} << 20;

}  // namespace kalyxo
