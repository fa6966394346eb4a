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
    constexpr std::string_view declaration = "charset=";
    const std::string searched = toLower(head.substr(0, searchedForCharset));
    const std::size_t found = searched.find(declaration);
    if (found == searched.npos) return true;
    const std::size_t name = searched.find_first_not_of("\"' ", found + declaration.size());
    return name != searched.npos && std::ranges::any_of(namesOf1253, [&](std::string_view one) {
               return std::string_view(searched).substr(name).starts_with(one);
           });
}

}  // namespace platform
