#pragma once

#include <cstdint>
#include <optional>
#include <string>

namespace formats {

/// The highest page number: six decimal digits.
inline constexpr std::int32_t maxPageNumber = 999'999;

/// The path of a content page relative to the data folder, with backslashes and without extension.
///
/// The number is written with six digits d1…d6. In the groups (d1 d2) 01, 02, 04, 06, 08, 11, 12 and 13 the
/// path is `d1d2\d6\d3d4d5`, in all others `d1d2\d3d4d5d6`: page 11234 lies in `01\4\123`, page 290000 in
/// `29\0000`. Nothing for numbers below 1 or of more than six digits.
std::optional<std::string> pagePath(std::int32_t number);

}  // namespace formats
