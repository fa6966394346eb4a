#include "src/pages/GlossaryText.h"

#include <vector>

#include "platform/files/TextReader.h"
#include "platform/text/CodePage1253.h"
#include "src/pages/GlossaryMarkup.h"

namespace kalyxo {

using platform::TextReader;

namespace {

/// Sizes of the line buffers, in bytes; a longer line is read as several lines.
constexpr std::size_t kTitleRoom = 50;
constexpr std::size_t kLineRoom = 4999;
constexpr std::size_t kMinDefinition = 5;
constexpr std::size_t kMaxDefinitionBytes = std::size_t{1} << 20;

std::string_view untilLineEnd(std::string_view line) {
    using namespace std::string_view_literals;
    return line.substr(0, line.find_first_of("\n\0"sv));
}

}  // namespace

bool IsEnlargedViewLink(std::string_view url) {
    constexpr std::size_t kLength = 8;
    return url.size() == kLength && platform::equalsNoCase(url.substr(3), "a.htm");
}

std::optional<std::string> GlossaryFile(std::string_view url) {
    const std::string lower = platform::toLower(url);
    const std::size_t at = lower.find(kGlossaryPrefix);
    if (at == std::string::npos) return std::nullopt;
    const std::string name = lower.substr(at + kGlossaryPrefix.size());
    return name.find_first_of("\\/:") == std::string::npos ? name : std::string();
}

std::optional<std::string> ReadDefinition(const platform::FileSystem& files, std::string_view path) {
    std::optional<TextReader> reader = TextReader::open(files, path);
    if (!reader) return std::nullopt;
    std::vector<char> line(kLineRoom);
    reader->readLine(line.data(), kTitleRoom);
    std::string text;
    std::size_t bytesRead = 0;
    while (const std::size_t length = reader->readLine(line.data(), line.size())) {
        bytesRead += length;
        if (bytesRead > kMaxDefinitionBytes) return std::nullopt;
        if (!text.empty()) text += "\r\n";
        text += untilLineEnd({line.data(), length});
    }
    if (text.size() < kMinDefinition) return std::nullopt;
    return text;
}

}  // namespace kalyxo
