#include "src/state/DataPaths.h"

#include "platform/files/FileSystem.h"
#include "platform/files/Profile.h"
#include "src/state/IniValue.h"

namespace kalyxo {

using platform::FileSystem;

namespace {

/// Only this many bytes of cset.ini are read.
constexpr std::size_t kIniBytesRead = 1000;
constexpr std::string_view kSection = "Settings";
constexpr std::string_view kDataPath = "DataPath";
constexpr std::string_view kBookmark = "Bookmark";

std::string iniFile(const PathSources& sources) { return sources.programFolder + "\\cset.ini"; }

std::string readIni(const FileSystem& files, const PathSources& sources) {
    std::string text = files.readStart(iniFile(sources), kIniBytesRead).value_or(std::string());
    text.resize(std::min(text.size(), text.find('\0')));
    return text;
}

std::string withBackslash(std::string folder) {
    if (!folder.ends_with('\\')) folder += '\\';
    return folder;
}

std::string initialDataFolder(std::string_view ini) {
    std::string value;
    return GetIniValue(ini, kDataPath, value) >= 2 ? withBackslash(value) : "c:\\";
}

bool holdsContent(const FileSystem& files, const std::string& dataFolder) {
    return static_cast<bool>(files.openForReading(dataFolder + "a.htm"));
}

/// The data folder: the first guess, or else what the user chooses; nothing when the user cancels.
std::optional<std::string> locateContent(const FileSystem& files, const PathSources& sources,
                                         const FolderChooser& choose, std::string dataFolder) {
    while (!holdsContent(files, dataFolder)) {
        const std::optional<std::string> chosen = choose(FolderPurpose::locateContent);
        if (!chosen) return std::nullopt;
        platform::writeProfileString(files, iniFile(sources), kSection, kDataPath, *chosen);
        dataFolder = withBackslash(*chosen);
    }
    return dataFolder;
}

std::string decideBookmarkFile(const FileSystem& files, const PathSources& sources,
                               const FolderChooser& choose, std::string_view ini) {
    std::string file;
    if (GetIniValue(ini, kBookmark, file) >= 3) return file;
    const std::optional<std::string> folder = choose(FolderPurpose::storeBookmarks);
    file = folder ? *folder + "\\bookmark.dat" : sources.tempFolder + "klyxbookmark.dat";
    platform::writeProfileString(files, iniFile(sources), kSection, kBookmark, file);
    return file;
}

}  // namespace

std::optional<DataPaths> FindDataPaths(const FileSystem& files, const PathSources& sources,
                                       const FolderChooser& choose) {
    const std::string ini = readIni(files, sources);
    std::optional<std::string> data = sources.dataFolder.empty()
                                          ? locateContent(files, sources, choose, initialDataFolder(ini))
                                          : sources.dataFolder;
    if (!data) return std::nullopt;
    return DataPaths{std::move(*data), decideBookmarkFile(files, sources, choose, ini)};
}

}  // namespace kalyxo
