#pragma once

#include <functional>
#include <map>
#include <string>
#include <string_view>

#include "platform/base/Result.h"

namespace elementc {

/// What is known of one element: field name to text in UTF-8; a field without data is absent.
using Record = std::map<std::string, std::string, std::less<>>;

/// By atomic number.
using Records = std::map<int, Record>;

inline constexpr int elementCount = 118;

/// What a step gives, or what is wrong: if possible as `file:line: message`.
using platform::Failure;
using platform::Result;

/// The text of a field, empty where there is none.
inline std::string_view field(const Record& record, std::string_view name) {
    const auto found = record.find(name);
    return found == record.end() ? std::string_view() : std::string_view(found->second);
}

}  // namespace elementc
