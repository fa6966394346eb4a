#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace contentc {

/// The one of the names that `wanted` was probably meant to be: the one with the fewest wrong, missing,
/// additional and exchanged letters, case and accents apart. The first of equals. Nothing when none is like
/// it. UTF-8.
std::optional<std::string> nearestName(std::string_view wanted, const std::vector<std::string>& names);

}  // namespace contentc
