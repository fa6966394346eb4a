#include "tests/scenarios/Fragment.h"

#include <string_view>

namespace scenario {

namespace {

constexpr std::string_view kMore = "…";

/// Place in the answer, such as `.history.entries[2]`.
using Place = std::string;

std::optional<std::string> differenceAt(const Place& place, const Json& answer, const Json& fragment);

std::string told(const Place& place, const Json& answer, const Json& fragment) {
    return (place.empty() ? "the answer" : place) + " is " + answer.dump() + ", not " + fragment.dump();
}

bool fitsText(std::string_view text, std::string_view pattern) {
    const bool openStart = pattern.starts_with(kMore);
    if (openStart) pattern.remove_prefix(kMore.size());
    const bool openEnd = pattern.ends_with(kMore);
    if (openEnd) pattern.remove_suffix(kMore.size());
    if (openStart && openEnd) return text.find(pattern) != std::string_view::npos;
    if (openStart) return text.ends_with(pattern);
    return openEnd ? text.starts_with(pattern) : text == pattern;
}

bool isSequence(const Json& fragment) {
    return !fragment.empty() && fragment.front().is_string() &&
           fragment.front().get_ref<const std::string&>() == kMore;
}

std::optional<std::string> differenceInSequence(const Place& place, const Json& answer,
                                                const Json& fragment) {
    std::size_t wanted = 1;
    for (const Json& element : answer) {
        if (wanted < fragment.size() && !differenceAt(place, element, fragment[wanted])) ++wanted;
    }
    if (wanted == fragment.size()) return std::nullopt;
    return place + " has no " + fragment[wanted].dump() + " in its place: " + answer.dump();
}

std::optional<std::string> differenceInArray(const Place& place, const Json& answer, const Json& fragment) {
    if (!answer.is_array()) return told(place, answer, fragment);
    if (isSequence(fragment)) return differenceInSequence(place, answer, fragment);
    if (answer.size() != fragment.size()) return told(place, answer, fragment);
    for (std::size_t i = 0; i < fragment.size(); ++i) {
        if (auto found = differenceAt(place + "[" + std::to_string(i) + "]", answer[i], fragment[i]))
            return found;
    }
    return std::nullopt;
}

std::optional<std::string> differenceInObject(const Place& place, const Json& answer, const Json& fragment) {
    if (!answer.is_object()) return told(place, answer, fragment);
    for (const auto& [key, wanted] : fragment.items()) {
        const Place inner = Place(place).append(".").append(key);
        const auto held = answer.find(key);
        if (held == answer.end()) return Place(inner).append(" is missing in ").append(answer.dump());
        if (auto found = differenceAt(inner, *held, wanted)) return found;
    }
    return std::nullopt;
}

std::optional<std::string> differenceAt(const Place& place, const Json& answer, const Json& fragment) {
    if (fragment.is_object()) return differenceInObject(place, answer, fragment);
    if (fragment.is_array()) return differenceInArray(place, answer, fragment);
    const bool fits =
        fragment.is_string() && answer.is_string()
            ? fitsText(answer.get_ref<const std::string&>(), fragment.get_ref<const std::string&>())
            : answer == fragment;
    return fits ? std::nullopt : std::optional(told(place, answer, fragment));
}

}  // namespace

std::optional<std::string> difference(const Json& answer, const Json& fragment) {
    return differenceAt({}, answer, fragment);
}

const Json* findSomewhere(const Json& answer, const Json& fragment) {
    if (!answer.is_structured()) return nullptr;
    if (answer.is_object() && !difference(answer, fragment)) return &answer;
    for (const Json& inner : answer) {
        if (const Json* found = findSomewhere(inner, fragment)) return found;
    }
    return nullptr;
}

}  // namespace scenario
