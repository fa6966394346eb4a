#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>

namespace platform {
class FileSystem;
}

namespace kalyxo {

/// What a folder is asked for.
enum class FolderPurpose { locateContent, storeBookmarks };

/// Asks the user for a folder, without a backslash at its end; nothing when the user cancels.
using FolderChooser = std::function<std::optional<std::string>(FolderPurpose)>;

/// Where the content and the bookmarks are.
struct DataPaths {
    std::string dataFolder;  ///< ends with a backslash
    std::string bookmarkFile;
};

/// Folders that the paths are decided from.
struct PathSources {
    std::string programFolder;  ///< holds cset.ini; no trailing backslash
    std::string tempFolder;     ///< ends with a backslash
};

/// Reads cset.ini and asks the user for what it does not tell, remembering the answers in it. The data folder
/// is the first one that holds "a.htm"; nothing when the user gives up looking for it.
std::optional<DataPaths> FindDataPaths(const platform::FileSystem& files, const PathSources& sources,
                                       const FolderChooser& choose);

}  // namespace kalyxo
