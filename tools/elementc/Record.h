#pragma once

#include <functional>
#include <map>
#include <string>
#include <string_view>
#include <utility>

namespace elementc {

/// What is known of one element: field name to text in UTF-8; a field without data is absent.
using Record = std::map<std::string, std::string, std::less<>>;

/// By atomic number.
using Records = std::map<int, Record>;

inline constexpr int elementCount = 118;

/// A result, or what is wrong, as far as can be told as `file:line: message`.
template <class T>
struct Outcome {
    T value{};
    std::string fault{};
};

template <class T>
Outcome<T> failed(const std::string& fault) {
    return {{}, fault};
}

/// The text of a field, empty where there is none.
inline std::string_view field(const Record& record, std::string_view name) {
    const auto found = record.find(name);
    return found == record.end() ? std::string_view() : std::string_view(found->second);
}

}  // namespace elementc
