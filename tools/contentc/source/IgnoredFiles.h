#pragma once

#include <filesystem>
#include <system_error>
#include <vector>

#include "tools/contentc/source/Diagnostics.h"

namespace contentc {

/// Whether there is such a folder, or anything of this name; also when the system fails to tell, so that
/// reading it tells the reason.
bool isFolder(const std::filesystem::path& path);
bool isThere(const std::filesystem::path& path);

/// The visible entries of a folder, sorted by name; none when there is no such folder. Backups of editors are
/// left out. `failed` is set when there may be more.
std::vector<std::filesystem::path> listFolder(const std::filesystem::path& folder, std::error_code& failed);
/// The same for those who need not know.
std::vector<std::filesystem::path> listFolder(const std::filesystem::path& folder);

/// Warns of the files and folders of an author's folder that are not taken, and says where they belong.
void reportIgnoredFiles(const std::filesystem::path& root, Diagnostics& diagnostics);

}  // namespace contentc
