#include "platform/browser/FolderAddresses.h"

#include <QByteArray>
#include <algorithm>
#include <functional>

#include "platform/text/CodePage1253.h"

namespace platform {

namespace {

/// What ends an attribute or the path of a URL, or begins an escape or an entity.
constexpr std::string_view toEscape = " #?%&\"'<>";

bool needsEscapes(std::string_view folder) { return folder.find_first_of(toEscape) != folder.npos; }

std::string escapedName(std::string_view folder) {
    std::string result;
    for (const char c : folder) {
        const bool isPlain = toEscape.find(c) == toEscape.npos;
        result += isPlain ? std::string(1, c) : QByteArray(1, c).toPercentEncoding().toStdString();
    }
    return result;
}

bool beginsAddress(std::string_view page, std::size_t at) {
    return at > 0 && std::string_view("\"'=(").find(page[at - 1]) != std::string_view::npos;
}

/// Put together anew: a page may hold the folder millions of times, and each change in place would move the
/// rest.
void escapeFolder(std::string& page, std::string_view folder) {
    const std::string with = escapedName(folder);
    std::string result;
    std::size_t done = 0;
    for (std::size_t at = page.find(folder); at != std::string::npos;
         at = page.find(folder, at + folder.size())) {
        if (!beginsAddress(page, at)) continue;
        result.append(page, done, at - done).append(with);
        done = at + folder.size();
    }
    page = result.append(page, done);
}

}  // namespace

std::size_t folderLength(std::string_view address, const std::vector<std::string>& folders) {
    std::size_t longest = 0;
    for (const std::string& folder : folders) {
        if (equalsNoCase(address.substr(0, folder.size()), folder))
            longest = std::max(longest, folder.size());
    }
    return longest;
}

bool needEscapes(const std::vector<std::string>& folders) {
    return std::ranges::any_of(folders, needsEscapes);
}

std::string escapeFolders(std::string page, std::vector<std::string> folders) {
    // A folder may lie in another one.
    std::ranges::sort(folders, std::ranges::greater(), &std::string::size);
    for (const std::string& folder : folders) {
        if (needsEscapes(folder)) escapeFolder(page, folder);
    }
    return page;
}

}  // namespace platform
