#pragma once

#include <string>
#include <string_view>

namespace platform {

/// The extension of a file's name in lower case, without its full stop; empty when it has none.
std::string extensionOf(std::string_view path);

/// The media type of a file by its extension. A file without one is a page; an unknown extension is
/// "application/octet-stream".
std::string_view mediaTypeOf(std::string_view path);

/// Whether a text that begins so is in code page 1253: it says so, or does not say in which character set it
/// is written. It can do so by a byte order mark, or by a META tag within the first kilobyte, where browsers
/// look for it.
bool isInCodePage1253(std::string_view head);

}  // namespace platform
