#pragma once

#include <charconv>
#include <concepts>
#include <optional>
#include <string_view>

namespace drive {

/// The word as a decimal number. Nothing when it is something else or does not fit the type.
template <std::integral T>
std::optional<T> number(std::string_view word) {
    T value{};
    const auto [end, error] = std::from_chars(word.data(), word.data() + word.size(), value);
    if (error != std::errc() || end != word.data() + word.size()) return std::nullopt;
    return value;
}

}  // namespace drive
