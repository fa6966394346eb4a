#pragma once

#include <optional>
#include <string>
#include <string_view>

class QUrl;

/// Addresses of pages. The program and the content write DOS paths (`D:\a.htm`, `c:/cache/1.htm`). For the
/// engine they are URLs with the drive letter as scheme (`d://drive.invalid/a.htm`), which resolve relative
/// links only when written with forward slashes. The host, always the same, makes the pages of a drive one
/// site: without any, each page would be a site of its own, for which the engine makes a frame anew and keeps
/// part of it.
namespace platform {

/// How the URLs of a drive begin, up to the slash of the path.
std::string driveUrlStart(char letter);

/// Whether the URL's scheme is a drive letter.
bool isDriveUrl(const QUrl& url);

/// Whether it is an address on the network, by http or https.
bool isOnline(const QUrl& url);

/// The URL of an address in code page 1253: a DOS path, whose part from `#` on is the fragment, or any
/// other URL text. Forward slashes, everything escaped that would not be part of the path. A `#` within the
/// first `folderLength` bytes belongs to the name of a folder.
QUrl urlOfAddress(std::string_view address, std::size_t folderLength = 0);

/// A drive URL on the drive's host and with forward slashes, its only form here; others stay as they are.
QUrl normalisedUrl(const QUrl& url);

/// The canonical DOS path that a drive URL names, in code page 1253, decoded once; the URL's query and
/// fragment are left out. This is the path that is judged and the path that is opened. Nothing for other URLs
/// and for names that the code page cannot write.
std::optional<std::string> dosPathOfUrl(const QUrl& url);

/// The address as the program is told it: a drive URL in DOS form (`C:\Program\cache\1.htm#top`), any other
/// as it is.
std::string addressOfUrl(const QUrl& url);

}  // namespace platform
