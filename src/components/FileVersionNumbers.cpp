#include "src/components/FileVersionNumbers.h"

#include <algorithm>
#include <array>
#include <optional>
#include <string>

#include "platform/files/FileVersion.h"
#include "platform/machine/Machine.h"

namespace kalyxo {

namespace {

constexpr std::size_t kParts = 4;

bool isBlank(char c) { return c == ' ' || (c >= '\t' && c <= '\r'); }

/// Reads blanks, a sign and digits: the number modulo 65536, for any number of digits.
std::uint32_t partNumber(std::string_view text) {
    while (!text.empty() && isBlank(text.front())) text.remove_prefix(1);
    const bool negative = text.starts_with('-');
    if (negative || text.starts_with('+')) text.remove_prefix(1);
    std::uint32_t number = 0;
    for (const char c : text) {
        if (c < '0' || c > '9') break;
        number = number * 10 + static_cast<std::uint32_t>(c - '0');
    }
    return (negative ? 0U - number : number) % 65536;
}

}  // namespace

FileVersionNumbers ParseFileVersion(std::string_view text) {
    std::string stopped(text);
    std::ranges::replace(stopped, ',', '.');
    std::array<std::uint32_t, kParts> numbers{};
    std::size_t count = 0;
    for (std::size_t begin = 0; count < kParts; ++count) {
        numbers.at(count) = partNumber(std::string_view(stopped).substr(begin));
        const std::size_t stop = stopped.find('.', begin);
        if (stop == std::string::npos) {
            ++count;
            break;
        }
        begin = stop + 1;
    }
    if (count < 2) return {};
    return {numbers[0] * 65536 + numbers[1], count < kParts ? 0 : numbers[2] * 65536 + numbers[3]};
}

FileVersionNumbers GetFileVersionNumbers(platform::Machine& machine, std::string_view path) {
    const std::optional<std::string> found = machine.findLibrary(path);
    const auto native = found ? machine.files().nativePath(*found) : std::nullopt;
    const auto text = native ? platform::fileVersionText(*native) : std::nullopt;
    return text ? ParseFileVersion(*text) : FileVersionNumbers{};
}

}  // namespace kalyxo
