#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <vector>

#include "platform/drawing/Bitmap.h"

namespace kalyxo {

/// How many colours follow a bitmap's header by what the header says: none for deep pictures, unless it names
/// a number.
std::uint32_t ColourCount(const platform::BITMAPINFOHEADER& header);

/// The palette of a bitmap that begins with a header of 40 bytes, and how many colours it has. Nothing, and
/// no colours, when it needs none or its colour table is cut short.
std::optional<std::vector<platform::PALETTEENTRY>> CreatePaletteFromHeader(std::span<const std::byte> bitmap,
                                                                           std::uint32_t& colourCount);

}  // namespace kalyxo
