#pragma once

#include <nlohmann/json.hpp>
#include <optional>
#include <string>

namespace scenario {

using Json = nlohmann::ordered_json;

/// Where and how an answer differs from what a fragment asks for; nothing when it holds all of it.
///
/// An object must hold the fragment's keys and may hold more. An array must have as many elements, unless the
/// fragment's first element is "…": then the others must appear in their order, with anything between. A text
/// that begins or ends with "…" may go on there. All else must be equal.
std::optional<std::string> difference(const Json& answer, const Json& fragment);

/// The first object, at any depth of the answer, that holds the fragment; null when there is none.
const Json* findSomewhere(const Json& answer, const Json& fragment);

}  // namespace scenario
