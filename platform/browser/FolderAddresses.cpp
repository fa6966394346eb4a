#include "platform/browser/FolderAddresses.h"

#include <QByteArray>
#include <algorithm>
#include <functional>

#include "platform/browser/DosUrl.h"
#include "platform/text/CodePage1253.h"

namespace platform {

namespace {

/// What ends an attribute or the path of a URL, or begins an escape or an entity.
constexpr std::string_view toEscape = " #?%&\"'<>";

/// The URL of a folder that is given as a DOS path.
std::string urlOfFolder(std::string_view folder) {
    std::string result = driveUrlStart(folder[0]);
    for (const char c : folder.substr(2)) {
        const bool isPlain = toEscape.find(c) == toEscape.npos;
        if (c == '\\') {
            result += '/';
        } else {
            result += isPlain ? std::string(1, c) : QByteArray(1, c).toPercentEncoding().toStdString();
        }
    }
    return result;
}

bool beginsAddress(std::string_view page, std::size_t at) {
    return at > 0 && std::string_view("\"'=(").find(page[at - 1]) != std::string_view::npos;
}

/// Put together anew: a page may hold the folder millions of times, and each change in place would move the
/// rest.
void writeUrls(std::string& page, std::string_view folder) {
    const std::string with = urlOfFolder(folder);
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

std::string folderUrls(std::string text, std::vector<std::string> folders) {
    // A folder may lie in another one.
    std::ranges::sort(folders, std::ranges::greater(), &std::string::size);
    for (std::string& folder : folders) {
        if (folder.size() < 3) continue;
        writeUrls(text, folder);
        folder[0] = lower(folder[0]);
        writeUrls(text, folder);
    }
    return text;
}

}  // namespace platform
