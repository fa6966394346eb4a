#pragma once

#include <string_view>

#include "platform/files/FileSystem.h"

namespace platform {

/// Sets a key of an INI file as the platform's profile writer does: the key's line in its section is
/// replaced, a missing key is added at the end of the section, a missing section at the end of the file, a
/// missing file is created. All other lines stay. Section and key are found without regard to case. Lines end
/// with CR LF. Returns false, with the old file as it was, when it cannot be written. All texts are code page
/// 1253.
bool writeProfileString(const FileSystem& files, std::string_view dosPath, std::string_view section,
                        std::string_view key, std::string_view value);

}  // namespace platform
