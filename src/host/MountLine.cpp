#include "src/host/MountLine.h"

#include <algorithm>
#include <sstream>
#include <string_view>

namespace kalyxo {

namespace {

bool isOctal(char c) { return c >= '0' && c <= '7'; }

/// Blanks, line ends and backslashes of names are written as a backslash with three octal digits.
std::string withoutEscapes(std::string_view text) {
    std::string result;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const std::string_view digits = text.substr(i + 1, 3);
        if (text[i] == '\\' && digits.size() == 3 && std::ranges::all_of(digits, isOctal)) {
            result += static_cast<char>((digits[0] - '0') * 64 + (digits[1] - '0') * 8 + (digits[2] - '0'));
            i += 3;
        } else {
            result += text[i];
        }
    }
    return result;
}

}  // namespace

std::optional<MountLine> ReadMountLine(const std::string& line) {
    MountLine fields;
    std::istringstream in(line);
    if (!(in >> fields.device >> fields.folder >> fields.type)) return std::nullopt;
    fields.device = withoutEscapes(fields.device);
    fields.folder = withoutEscapes(fields.folder);
    return fields;
}

}  // namespace kalyxo
