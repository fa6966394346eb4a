#include "platform/machine/BoxAnswer.h"

#include <algorithm>
#include <array>
#include <utility>

namespace platform {

namespace {

constexpr std::array<std::pair<BoxAnswer, std::string_view>, 4> names = {{
    {BoxAnswer::ok, "ok"},
    {BoxAnswer::cancel, "cancel"},
    {BoxAnswer::yes, "yes"},
    {BoxAnswer::no, "no"},
}};

}  // namespace

std::string_view boxAnswerName(BoxAnswer answer) {
    const auto found = std::ranges::find_if(names, [answer](const auto& row) { return row.first == answer; });
    return found == names.end() ? std::string_view{} : found->second;
}

std::optional<BoxAnswer> boxAnswerByName(std::string_view name) {
    const auto found = std::ranges::find_if(names, [name](const auto& row) { return row.second == name; });
    return found == names.end() ? std::nullopt : std::optional(found->first);
}

}  // namespace platform
