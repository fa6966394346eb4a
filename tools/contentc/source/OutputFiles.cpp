#include "tools/contentc/source/OutputFiles.h"

#include <algorithm>
#include <cctype>

#include "platform/text/CodePage1253.h"
#include "tools/contentc/source/FileMessages.h"

namespace contentc {
namespace {

std::string normalised(std::string_view path) {
    std::string key = platform::toLower(path);
    std::ranges::replace(key, '/', '\\');
    return key;
}

constexpr std::string_view allowedSigns = ".-_\\";

bool isPortable(std::string_view path) {
    return std::ranges::all_of(path, [](char c) {
        const auto value = static_cast<unsigned char>(c);
        return value < 0x80 && (std::isalnum(value) || allowedSigns.find(c) != std::string_view::npos);
    });
}

}  // namespace

void OutputFiles::add(const std::string& path, std::string bytes, const SourcePlace& source,
                      Diagnostics& diagnostics) {
    if (!isPortable(path)) {
        diagnostics.error(source, say::nameIsNotPlain, {path});
        return;
    }
    std::string key = normalised(path);
    const auto [place, isNew] = files_.try_emplace(std::move(key), File{path, std::move(bytes), source});
    if (!isNew)
        diagnostics.error(source, say::fileIsMadeAlready, {path, shownFile(place->second.source.file)});
}

bool OutputFiles::contains(std::string_view path) const { return files_.contains(normalised(path)); }

}  // namespace contentc
