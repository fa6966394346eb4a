#include "formats/PageNumber.h"

#include <array>
#include <string_view>

namespace formats {
namespace {

constexpr std::size_t digitCount = 6;

// The groups of the title lists: their pages are spread over ten subfolders by their last digit.
constexpr std::array<std::string_view, 8> spreadGroups{"01", "02", "04", "06", "08", "11", "12", "13"};

bool isSpreadGroup(std::string_view group) {
    for (const std::string_view spread : spreadGroups) {
        if (spread == group) return true;
    }
    return false;
}

}  // namespace

std::optional<std::string> pagePath(std::int32_t number) {
    if (number < 1 || number > maxPageNumber) return std::nullopt;
    std::string digits = std::to_string(number);
    digits.insert(0, digitCount - digits.size(), '0');
    const std::string group = digits.substr(0, 2);
    if (isSpreadGroup(group)) return group + '\\' + digits[5] + '\\' + digits.substr(2, 3);
    return group + '\\' + digits.substr(2);
}

}  // namespace formats
