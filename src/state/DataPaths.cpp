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

/// The beginning of cset.ini, empty when there is none; nothing when it cannot be read.
std::optional<std::string> readIni(const FileSystem& files, const PathSources& sources) {
    auto text = files.readStart(iniFile(sources), kIniBytesRead);
    if (!text && files.isMissing(iniFile(sources))) text.emplace();
    if (text) text->resize(std::min(text->size(), text->find('\0')));
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

/// Decides on the paths, and asks the user where cset.ini does not tell.
class PathSearch {
  public:
    PathSearch(const FileSystem& files, const PathSources& sources, const FolderChooser& choose)
        : m_files(files), m_sources(sources), m_choose(choose), m_ini(readIni(files, sources)) {}

    std::optional<DataPaths> Find() const {
        const std::string ini = m_ini.value_or(std::string());
        std::optional<std::string> data =
            m_sources.dataFolder.empty() ? locateContent(initialDataFolder(ini)) : m_sources.dataFolder;
        if (!data) return std::nullopt;
        return DataPaths{std::move(*data), decideBookmarkFile(ini)};
    }

  private:
    /// The data folder: the first guess, or else what the user chooses; nothing when the user cancels.
    std::optional<std::string> locateContent(std::string dataFolder) const {
        while (!holdsContent(m_files, dataFolder)) {
            const std::optional<std::string> chosen = m_choose(FolderPurpose::locateContent);
            if (!chosen) return std::nullopt;
            remember(kDataPath, *chosen);
            dataFolder = withBackslash(*chosen);
        }
        return dataFolder;
    }

    std::string decideBookmarkFile(std::string_view ini) const {
        std::string file;
        if (GetIniValue(ini, kBookmark, file) >= 3) return file;
        const std::optional<std::string> folder = m_choose(FolderPurpose::storeBookmarks);
        file = folder ? *folder + "\\bookmark.dat" : m_sources.tempFolder + "klyxbookmark.dat";
        remember(kBookmark, file);
        return file;
    }

    /// Where the file could not be read, an answer must not replace what it may tell at the next start.
    void remember(std::string_view key, const std::string& value) const {
        if (m_ini) platform::writeProfileString(m_files, iniFile(m_sources), kSection, key, value);
    }

    const FileSystem& m_files;
    const PathSources& m_sources;
    const FolderChooser& m_choose;
    std::optional<std::string> m_ini;  ///< nothing when it could not be read
};

}  // namespace

std::optional<DataPaths> FindDataPaths(const FileSystem& files, const PathSources& sources,
                                       const FolderChooser& choose) {
    return PathSearch(files, sources, choose).Find();
}

}  // namespace kalyxo
