#include "platform/plugins/FileType.h"

#include <algorithm>
#include <array>
#include <utility>

#include "platform/text/CodePage1253.h"

namespace platform {

namespace {

using Entry = std::pair<std::string_view, std::string_view>;

constexpr std::array<Entry, 23> mediaTypes = {{
    {"", "text/html"},       {"htm", "text/html"},      {"html", "text/html"},   {"txt", "text/plain"},
    {"css", "text/css"},     {"js", "text/javascript"}, {"xml", "text/xml"},     {"gif", "image/gif"},
    {"jpg", "image/jpeg"},   {"jpeg", "image/jpeg"},    {"png", "image/png"},    {"bmp", "image/bmp"},
    {"ico", "image/x-icon"}, {"svg", "image/svg+xml"},  {"webp", "image/webp"},  {"webm", "video/webm"},
    {"mp4", "video/mp4"},    {"ogv", "video/ogg"},      {"ogg", "audio/ogg"},    {"mp3", "audio/mpeg"},
    {"wav", "audio/wav"},    {"ttf", "font/ttf"},       {"woff2", "font/woff2"},
}};

constexpr std::size_t searchedForCharset = 1024;

/// As the Encoding Standard of the WHATWG has them.
constexpr std::array<std::string_view, 3> namesOf1253 = {"windows-1253", "cp1253", "x-cp1253"};

/// The name that a META tag gives; empty when there is none. Other tags name the character set of the file
/// that they lead to.
std::string declaredCharset(const std::string& lowerCase) {
    constexpr std::string_view declaration = "charset=";
    for (std::size_t tag = lowerCase.find("<meta"); tag != lowerCase.npos;
         tag = lowerCase.find("<meta", tag + 1)) {
        const std::size_t found = lowerCase.find(declaration, tag);
        if (found > lowerCase.find('>', tag)) continue;
        const std::size_t begin =
            std::min(lowerCase.find_first_not_of("\"' ", found + declaration.size()), lowerCase.size());
        return lowerCase.substr(begin, lowerCase.find_first_of("\"' ;/>", begin) - begin);
    }
    return {};
}

}  // namespace

std::string extensionOf(std::string_view path) {
    const std::string_view name = path.substr(path.find_last_of("\\/") + 1);
    const std::size_t stop = name.rfind('.');
    return stop == name.npos ? std::string() : toLower(name.substr(stop + 1));
}

std::string_view mediaTypeOf(std::string_view path) {
    const std::string extension = extensionOf(path);
    const auto found =
        std::ranges::find_if(mediaTypes, [&](const Entry& entry) { return entry.first == extension; });
    return found == mediaTypes.end() ? "application/octet-stream" : found->second;
}

bool isInCodePage1253(std::string_view head) {
    if (head.starts_with("\xEF\xBB\xBF") || head.starts_with("\xFF\xFE") || head.starts_with("\xFE\xFF")) {
        return false;
    }
    const std::string searched = toLower(head.substr(0, searchedForCharset));
    const std::string charset = declaredCharset(searched);
    return charset.empty() || std::ranges::find(namesOf1253, charset) != namesOf1253.end();
}

}  // namespace platform
