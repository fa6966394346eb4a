#pragma once

#include <deque>
#include <optional>
#include <span>
#include <string>
#include <vector>

#include "platform/components/Component.h"
#include "tools/drive/script/Json.h"

namespace drive {

/// Arguments of an operation or event, and the variables that its references point to.
struct ComponentArguments {
    std::vector<platform::Variant> values;
    std::deque<bool> references;
};

/// Turns each word into an argument of the type in its place: decimal numbers, `true` and `false`, texts in
/// UTF-8. A variant takes a number when the word is one, else a text. Nothing when there are more or fewer
/// words than types, or a word does not fit its type.
std::optional<ComponentArguments> componentArguments(std::span<const platform::TypeCode> types,
                                                     std::span<const std::string> words);

/// A result for an answer; null for an empty value and for an object.
Json variantJson(const platform::Variant& value);

}  // namespace drive
