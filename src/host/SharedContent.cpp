#include "src/host/SharedContent.h"

#include <sstream>
#include <string>
#include <string_view>
#include <system_error>

#include "platform/files/FileHandle.h"
#include "platform/text/Trimmed.h"

namespace kalyxo {

namespace fs = std::filesystem;
using platform::trimmed;

namespace {

constexpr std::size_t kMaxSettings = std::size_t{64} * 1024;
constexpr std::string_view kContent = "content";
constexpr std::string_view kBlanks = " \t\r";

}  // namespace

fs::path SharedContentFolder(const fs::path& settings) {
    platform::FileHandle file = platform::FileHandle::openForReading(settings);
    std::istringstream text(file ? file.readAll(kMaxSettings).value_or("") : "");
    fs::path folder;
    for (std::string line; std::getline(text, line);) {
        const std::string_view plain = trimmed(line, kBlanks);
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
