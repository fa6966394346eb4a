#pragma once

#include <optional>
#include <string>
#include <utility>

namespace platform {

/// What reading a file gave: the value, or why there is none (UTF-8, names the file).
template <typename T>
struct Loaded {
    std::optional<T> value;
    std::string error;  ///< empty when there is a value

    static Loaded failure(std::string text) { return {std::nullopt, std::move(text)}; }
    static Loaded success(T loaded) { return {std::move(loaded), {}}; }

    explicit operator bool() const { return value.has_value(); }
};

}  // namespace platform
