#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <vector>

#include "platform/drawing/Bitmap.h"

namespace kalyxo {

/// The palette of a bitmap that begins with a header of 40 bytes; its size is stored in `colourCount`.
/// Nothing, with a count of 0, when the bitmap has no palette or its colour table is cut short.
std::optional<std::vector<platform::PALETTEENTRY>> CreatePaletteFromHeader(std::span<const std::byte> bitmap,
                                                                           std::uint32_t& colourCount);

}  // namespace kalyxo
