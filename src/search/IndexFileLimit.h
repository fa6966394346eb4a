#pragma once

#include <cstddef>

namespace kalyxo {

/// As much of an index file as is read whole into memory; what a longer one holds beyond is left out.
inline constexpr std::size_t kLargestIndexFile = std::size_t{256} << 20;

}  // namespace kalyxo
