#include "tools/contentc/source/IgnoredFiles.h"

#include <algorithm>
#include <string>
#include <string_view>
#include <vector>

#include "tools/contentc/source/FileMessages.h"
#include "tools/contentc/source/Layers.h"
#include "tools/contentc/source/SourceFile.h"

namespace contentc {
namespace {

namespace fs = std::filesystem;

/// A folder of the sources and the extensions of the files that are taken from it.
struct SourceFolderUse {
    std::string_view name;
    std::vector<std::string_view> extensions;
    /// Whether the files lie in folders below it.
    bool hasFolders = false;
};

const std::vector<SourceFolderUse>& sourceFolderUses() {
    static const std::vector<SourceFolderUse> uses{
        {"pages", {".md"}, true},
        {"glossary", {".md"}},
        {"pictures", {".svg", ".png", ".jpg", ".bmp"}},
        {"molecules", {".mol"}},
        {"videos",
         {".webm", ".mp4", ".mov", ".avi", ".mkv", ".ogv", ".mpg", ".mpeg", ".json", ".awk", ".sh"}},
        {"datasets", {".data"}},
        {"words", {".txt"}},
        {"templates", {".html"}},
        {"tools", {".js", ".css", ".txt"}, true},
    };
    return uses;
}

bool takes(const SourceFolderUse& use, const fs::path& file) {
    return std::ranges::find(use.extensions, takenExtension(file)) != use.extensions.end();
}

/// Where a file of this kind is taken from; null when it is taken from nowhere.
const SourceFolderUse* placeOf(const fs::path& file) {
    const auto& uses = sourceFolderUses();
    const auto use = std::ranges::find_if(
        uses, [&file](const SourceFolderUse& candidate) { return takes(candidate, file); });
    return use == uses.end() ? nullptr : &*use;
}

/// The extension in which a file of this kind could be taken; empty when there is none.
std::string_view otherForm(const fs::path& file) {
    const std::string extension = takenExtension(file);
    const auto isOneOf = [&extension](std::initializer_list<std::string_view> names) {
        return std::ranges::find(names, extension) != names.end();
    };
    if (isOneOf({".gif", ".webp", ".tif", ".tiff", ".heic", ".odg", ".pdf"})) return "*.png, *.jpg, *.svg";
    if (isOneOf({".doc", ".docx", ".odt", ".rtf", ".txt", ".html", ".htm", ".pag"})) return "*.md";
    if (isOneOf({".pdb", ".xyz", ".cml", ".mol2"})) return "*.mol, *.sdf";
    if (isOneOf({".wmv", ".flv", ".m4v"})) return "*.mp4";
    if (isOneOf({".xls", ".xlsx", ".ods", ".csv"})) return "*.data";
    return {};
}

class IgnoredFilesReport {
  public:
    IgnoredFilesReport(const fs::path& root, Diagnostics& diagnostics)
        : root_(root), diagnostics_(diagnostics) {}

    void run() {
        for (const fs::path& path : listFolder(root_)) {
            if (isFolder(path)) {
                checkTopFolder(path);
            } else if (placeOf(path) && !isAtHomeOnTop(path)) {
                ignored(path, ".");
            }
        }
    }

  private:
    /// Files for people, and those that the compiler looks for by name.
    static bool isAtHomeOnTop(const fs::path& path) {
        const std::string stem = path.stem().string();
        const auto isSmall = [](char c) { return c >= 'a' && c <= 'z'; };
        const bool isForPeople = std::ranges::none_of(stem, isSmall) || takenExtension(path) == ".txt";
        return isForPeople || stem == "start" || stem == "help" || stem == "style" ||
               path.extension() == ".json";
    }

    void checkTopFolder(const fs::path& folder) {
        const std::string name = folder.filename().string();
        std::vector<std::string> names;
        for (const SourceFolderUse& use : sourceFolderUses()) {
            names.emplace_back(use.name);
            if (use.name == name) return checkFolder(folder, use);
        }
        // A data folder that was built here before is no source.
        if (isThere(folder / "a.htm")) return;
        diagnostics_.warning({folder.generic_string()}, say::unknownFolderIsIgnored)
            .suggestNearest(name, names);
    }

    void checkFolder(const fs::path& folder, const SourceFolderUse& use) {
        for (const fs::path& path : listFolder(folder)) {
            if (use.hasFolders && isFolder(path)) {
                checkFiles(path, use);
            } else {
                checkFile(path, use);
            }
        }
    }

    void checkFiles(const fs::path& folder, const SourceFolderUse& use) {
        for (const fs::path& path : listFolder(folder)) {
            // When one of these is no file, whoever reads it reports that.
            if (!takes(use, path)) checkFile(path, use);
        }
    }

    void checkFile(const fs::path& path, const SourceFolderUse& use) {
        if (isFolder(path)) {
            diagnostics_.warning({path.generic_string()}, say::folderIsIgnored);
        } else if (use.hasFolders || !takes(use, path)) {
            ignored(path, use.name);
        }
    }

    void ignored(const fs::path& path, std::string_view folder) {
        const SourcePlace place{path.generic_string()};
        const std::string extension = path.extension().string();
        if (extension.empty()) {
            diagnostics_.warning(place, say::fileWithoutExtensionIsIgnored);
            return;
        }
        Diagnostic& warning = diagnostics_.warning(place, say::fileIsIgnored, {extension, folder});
        const SourceFolderUse* use = placeOf(path);
        const std::string_view form = otherForm(path);
        if (!form.empty()) {
            warning.suggest(say::saveAs, {form});
        } else if (use && use->name == "pages") {
            warning.suggest(say::pagesLieInSections);
        } else if (use) {
            warning.suggest(say::itsPlaceIs, {use->name});
        }
    }

    const fs::path& root_;
    Diagnostics& diagnostics_;
};

}  // namespace

bool isFolder(const fs::path& path) {
    std::error_code failed;
    const fs::file_type type = fs::status(path, failed).type();
    return type == fs::file_type::directory || type == fs::file_type::none;
}

bool isThere(const fs::path& path) {
    std::error_code failed;
    return fs::status(path, failed).type() != fs::file_type::not_found;
}

std::vector<fs::path> listFolder(const fs::path& folder, std::error_code& failed) {
    std::vector<fs::path> entries;
    for (fs::directory_iterator it(folder, failed), end; !failed && it != end; it.increment(failed)) {
        const std::string name = it->path().filename().string();
        const bool isBackup = name.ends_with('~') || name.ends_with(".bak") || name.starts_with('#');
        if (!name.starts_with('.') && !isBackup) entries.push_back(it->path());
    }
    if (failed == std::errc::no_such_file_or_directory || failed == std::errc::not_a_directory)
        failed.clear();
    std::ranges::sort(entries);
    return entries;
}

std::vector<fs::path> listFolder(const fs::path& folder) {
    std::error_code ignored;
    return listFolder(folder, ignored);
}

void reportIgnoredFiles(const fs::path& root, Diagnostics& diagnostics) {
    IgnoredFilesReport(root, diagnostics).run();
}

}  // namespace contentc
