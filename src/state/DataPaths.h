#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>

namespace platform {
class FileSystem;
}

namespace kalyxo {

/// What the user is asked to choose a folder for.
enum class FolderPurpose { locateContent, storeBookmarks };

/// Asks the user for a folder, without a backslash at its end; nothing when the user cancels.
using FolderChooser = std::function<std::optional<std::string>(FolderPurpose)>;

/// Where the content and the bookmarks are.
struct DataPaths {
    std::string dataFolder;  ///< ends with a backslash
    std::string bookmarkFile;
};

/// What the paths are decided from.
struct PathSources {
    std::string programFolder;  ///< holds cset.ini; no trailing backslash
    std::string tempFolder;     ///< ends with a backslash
    std::string dataFolder =
        {};  ///< the data folder of this run, ends with a backslash; empty when cset.ini tells it
};

/// Reads the paths from cset.ini. The user is asked for a path that is missing or of no use, and the answer
/// is written into cset.ini, unless there is one that cannot be read. The data folder must hold "a.htm";
/// nothing when the user cancels the choice of it.
std::optional<DataPaths> FindDataPaths(const platform::FileSystem& files, const PathSources& sources,
                                       const FolderChooser& choose);

}  // namespace kalyxo
