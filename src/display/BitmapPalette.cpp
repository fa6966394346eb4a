#include "src/display/BitmapPalette.h"

#include <cstring>

namespace kalyxo {

using platform::BITMAPINFOHEADER;
using platform::PALETTEENTRY;

namespace {

/// Bytes of a colour in the table: blue, green, red, and one that is not used.
constexpr std::size_t kStoredColour = 4;
/// Up to this many bits, a pixel is an index into the colour table.
constexpr int kMaxIndexedBits = 8;

PALETTEENTRY entryAt(std::span<const std::byte> table, std::size_t index) {
    const auto part = [&](std::size_t offset) {
        return std::to_integer<std::uint8_t>(table[index * kStoredColour + offset]);
    };
    return {part(2), part(1), part(0), 0};
}

/// The number of colours that follow a bitmap's header. With more than 8 bits a pixel there are none, unless
/// the header says otherwise.
std::uint32_t ColourCount(const BITMAPINFOHEADER& header) {
    if (header.biClrUsed != 0) return header.biClrUsed;
    return header.biBitCount <= kMaxIndexedBits ? 1U << header.biBitCount : 0;
}

}  // namespace

std::optional<std::vector<PALETTEENTRY>> CreatePaletteFromHeader(std::span<const std::byte> bitmap,
                                                                 std::uint32_t& colourCount) {
    colourCount = 0;
    BITMAPINFOHEADER header;
    if (bitmap.size() < sizeof(header)) return std::nullopt;
    std::memcpy(&header, bitmap.data(), sizeof(header));
    const std::span<const std::byte> table = bitmap.subspan(sizeof(header));
    const std::uint32_t count = ColourCount(header);
    if (count == 0 || count > table.size() / kStoredColour) return std::nullopt;
    std::vector<PALETTEENTRY> palette(count);
    for (std::size_t i = 0; i < palette.size(); ++i) palette[i] = entryAt(table, i);
    colourCount = count;
    return palette;
}

}  // namespace kalyxo
