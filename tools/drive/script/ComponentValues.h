#pragma once

#include <deque>
#include <optional>
#include <span>
#include <string>
#include <vector>

#include "platform/components/Component.h"
#include "tools/drive/script/Json.h"

namespace drive {

/// Arguments of an operation or event, and the places that its references point to.
struct ControlArguments {
    std::vector<platform::Variant> values;
    std::deque<bool> references;
};

/// The words as arguments of these types, one each: numbers in decimal, booleans `true` or `false`, texts in
/// UTF-8; a variant takes a number when the word is one, else a text. Nothing when the number of words
/// differs or one does not fit its type.
std::optional<ControlArguments> controlArguments(std::span<const platform::TypeCode> types,
                                                 std::span<const std::string> words);

/// A result for an answer; null for an empty value and for an object.
Json variantJson(const platform::Variant& value);

}  // namespace drive
