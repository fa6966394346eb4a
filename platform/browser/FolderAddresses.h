#pragma once

#include <string>
#include <string_view>
#include <vector>

/// Addresses that begin with the path of an allowed folder. Its name is text in them: a `#`, `?` or `%` there
/// means nothing else, as it would in a URL.
namespace platform {

/// The length of the longest of the folders (DOS paths that end with a backslash) that the address begins
/// with, in any letter case; 0 for none.
std::size_t folderLength(std::string_view address, const std::vector<std::string>& folders);

/// The text of a page or style sheet in which the addresses that begin with one of the folders are URLs (see
/// DosUrl.h) up to there. A folder is found as it stands, with its drive in either case, behind a quote, an
/// equals sign or a parenthesis.
std::string folderUrls(std::string text, std::vector<std::string> folders);

}  // namespace platform
