#pragma once

#include <concepts>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <type_traits>

namespace formats {

/// The little-endian integer at `offset`; `bytes` must reach that far.
template <std::integral T>
T readInteger(std::string_view bytes, std::size_t offset) {
    using Bits = std::make_unsigned_t<T>;
    std::uint64_t value = 0;
    for (std::size_t i = 0; i < sizeof(T); ++i) {
        value |= std::uint64_t{static_cast<unsigned char>(bytes[offset + i])} << (8 * i);
    }
    return static_cast<T>(static_cast<Bits>(value));
}

/// Appends an integer in little-endian order.
template <std::integral T>
void appendInteger(std::string& bytes, T value) {
    const auto bits = static_cast<std::uint64_t>(static_cast<std::make_unsigned_t<T>>(value));
    for (std::size_t i = 0; i < sizeof(T); ++i) bytes.push_back(static_cast<char>((bits >> (8 * i)) & 0xFF));
}

/// The text in a field of fixed size: up to its first NUL, or all of it.
inline std::string_view readTextField(std::string_view field) { return field.substr(0, field.find('\0')); }

/// Whether a text fits into a field of `fieldSize` bytes with its NUL and can be read back whole.
inline bool fitsTextField(std::string_view text, std::size_t fieldSize) {
    return text.size() < fieldSize && text.find('\0') == std::string_view::npos;
}

/// Appends a text, which must fit, and fills it up with NULs to `fieldSize` bytes.
inline void appendTextField(std::string& bytes, std::string_view text, std::size_t fieldSize) {
    bytes.append(text);
    bytes.append(fieldSize - text.size(), '\0');
}

}  // namespace formats
