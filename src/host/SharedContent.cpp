#include "src/host/SharedContent.h"

#include <sstream>
#include <string>
#include <string_view>
#include <system_error>

#include "platform/files/FileHandle.h"

namespace kalyxo {

namespace fs = std::filesystem;

namespace {

constexpr std::size_t kMaxSettings = std::size_t{64} * 1024;
constexpr std::string_view kContent = "content";
constexpr std::string_view kSpace = " \t\r";

std::string_view trimmed(std::string_view text) {
    const auto first = text.find_first_not_of(kSpace);
    if (first == text.npos) return {};
    return text.substr(first, text.find_last_not_of(kSpace) + 1 - first);
}

}  // namespace

fs::path SharedContentFolder(const fs::path& settings) {
    platform::FileHandle file = platform::FileHandle::openForReading(settings);
    std::istringstream text(file ? file.readAll(kMaxSettings).value_or("") : "");
    fs::path folder;
    for (std::string line; std::getline(text, line);) {
        const std::string_view plain = trimmed(line);
        const auto equals = plain.find('=');
        if (equals != plain.npos && trimmed(plain.substr(0, equals)) == kContent)
            folder = trimmed(plain.substr(equals + 1));
    }
    return folder.is_absolute() ? folder : fs::path();
}

bool HoldsContent(const fs::path& folder) {
    std::error_code ignored;
    return fs::is_regular_file(folder / "a.htm", ignored);
}

}  // namespace kalyxo
