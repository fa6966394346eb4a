#include "tools/contentc/source/SourceTree.h"

#include <algorithm>
#include <cctype>
#include <iterator>
#include <map>
#include <set>
#include <string_view>
#include <system_error>

#include "platform/text/CodePage1253.h"
#include "tools/contentc/source/CommonMessages.h"
#include "tools/contentc/source/IgnoredFiles.h"

namespace contentc {
namespace {

namespace fs = std::filesystem;
using Extensions = std::initializer_list<std::string_view>;

/// Pages are the same by their number, whatever words follow it.
std::string pageKey(const fs::path& path) {
    const std::string stem = path.stem().string();
    const auto end = std::ranges::find_if_not(stem, [](unsigned char c) { return std::isdigit(c) != 0; });
    return end == stem.begin() ? stem : std::string(stem.begin(), end);
}

/// The other files are the same by their name.
std::string nameKeyOf(const fs::path& path) { return platform::toLower(path.stem().string()); }

/// Takes files of one kind from layer after layer, from the top down.
class Overlay {
  public:
    using KeyOf = std::string (*)(const fs::path&);

    explicit Overlay(KeyOf keyOf) : keyOf_(keyOf) {}

    bool isTaken(const fs::path& path) const { return above_.contains(keyOf_(path)); }
    bool isTakenOfThisLayer(const fs::path& path) const { return ofLayer_.contains(keyOf_(path)); }
    void take(const fs::path& path) { ofLayer_.insert(keyOf_(path)); }
    void endLayer() { above_.merge(ofLayer_); }

  private:
    KeyOf keyOf_;
    std::set<std::string> above_;
    std::set<std::string> ofLayer_;
};

class TreeReader {
  public:
    TreeReader(const fs::path& root, Diagnostics& diagnostics) : diagnostics_(diagnostics) {
        tree_.root = root;
    }

    void readLayer(const Layer& layer, std::size_t index) {
        layer_ = index;
        root_ = layer.folder;
        readEquipment();
        if (!layer.onlyEquipment) readContent(layer);
        // Pictures in the form of the main menu are drawn by the program's own build.
        takeMade(pictures_, tree_.pictures, layer.images, ".bmp");
        for (Overlay* overlay : {&pages_, &pictures_, &molecules_, &videos_, &dataSets_, &tools_})
            overlay->endLayer();
    }

    SourceTree result() {
        for (auto& [name, section] : sections_) {
            std::ranges::sort(section.pages, {}, [](const SourceFile& file) { return file.path.filename(); });
            tree_.sections.push_back(std::move(section));
        }
        for (auto* files : {&tree_.dataSets, &tree_.molecules, &tree_.drawings, &tree_.pictures, &tree_.films,
                            &tree_.foreignVideos, &tree_.videos}) {
            std::ranges::stable_sort(*files, {}, [](const SourceFile& file) { return file.path.filename(); });
        }
        return std::move(tree_);
    }

  private:
    std::optional<SourceFile> readFile(const fs::path& path) {
        auto file = readSourceFile(path, diagnostics_);
        if (file) file->layer = layer_;
        return file;
    }

    /// Reads a file, unless it is missing or a higher layer had it.
    void readOne(std::optional<SourceFile>& file, const char* name) {
        if (!file && isThere(root_ / name)) file = readFile(root_ / name);
    }

    void readEquipment() {
        readOne(tree_.startPage, "start.md");
        readOne(tree_.helpPage, "help.md");
        readOne(tree_.pageTemplate, "templates/page.html");
        readOne(tree_.moleculeTemplate, "templates/molecule.html");
        readOne(tree_.style, "style.css");
        readOne(tree_.stopWords, "words/stop.txt");
        readOne(tree_.wordForms, "words/forms.txt");
        for (const fs::path& folder : list(root_ / "tools")) {
            if (tools_.isTaken(folder)) continue;
            tools_.take(folder);
            for (const fs::path& path : pathsOf(folder, {".js", ".css", ".txt"})) append(tree_.tools, path);
        }
    }

    void readContent(const Layer& layer) {
        readOne(tree_.families, "families.txt");
        if (layer_ == 0) readOne(tree_.terminology, "words/terminology.txt");
        for (const fs::path& folder : list(root_ / "pages")) {
            if (isFolder(folder)) readSection(folder);
        }
        for (const fs::path& path : pathsOf(root_ / "glossary", {".md"})) append(tree_.terms, path);
        take(dataSets_, tree_.dataSets, pathsOf(root_ / "datasets", {".data"}));
        take(molecules_, tree_.molecules, pathsOf(root_ / "molecules", {".mol"}));
        take(pictures_, tree_.pictures, pathsOf(root_ / "pictures", {".png", ".jpg", ".bmp"}));
        takeSources(pictures_, tree_.drawings, tree_.pictures, pathsOf(root_ / "pictures", {".svg"}),
                    {layer.images, ".png"});
        take(videos_, tree_.videos, pathsOf(root_ / "videos", {".webm"}));
        takeSources(videos_, tree_.films, tree_.videos, pathsOf(root_ / "videos", {".json"}),
                    {layer.media, ".webm"});
        takeForeignVideos();
        takeMade(videos_, tree_.videos, layer.media, ".webm");
        takeMade(pictures_, tree_.pictures, layer.images, ".png");
    }

    void readSection(const fs::path& folder) {
        SectionFolder& section =
            sections_.try_emplace(folder.filename().string(), SectionFolder{{folder, {}}, {}}).first->second;
        take(pages_, section.pages, pathsOf(folder, {".md"}));
    }

    std::vector<fs::path> list(const fs::path& folder) {
        std::error_code failed;
        std::vector<fs::path> paths = listFolder(folder, failed);
        if (failed) diagnostics_.error({folder.generic_string()}, say::cannotBeRead);
        return paths;
    }

    std::vector<fs::path> pathsOf(const fs::path& folder, Extensions extensions) {
        std::vector<fs::path> paths = list(folder);
        std::erase_if(paths, [&](const fs::path& path) {
            return std::ranges::find(extensions, takenExtension(path)) == extensions.end();
        });
        return paths;
    }

    void append(std::vector<SourceFile>& files, const fs::path& path) {
        if (auto file = readFile(path)) files.push_back(std::move(*file));
    }

    void take(Overlay& overlay, std::vector<SourceFile>& files, const std::vector<fs::path>& paths) {
        for (const fs::path& path : paths) {
            if (overlay.isTaken(path)) continue;
            overlay.take(path);
            append(files, path);
        }
    }

    struct Made {
        const std::vector<fs::path>& folders;
        const char* extension;
    };

    /// Takes sources of which something is made: what has been made, or else the source.
    void takeSources(Overlay& overlay, std::vector<SourceFile>& sources, std::vector<SourceFile>& results,
                     const std::vector<fs::path>& paths, const Made& made) {
        for (const fs::path& path : paths) {
            if (overlay.isTaken(path)) continue;
            overlay.take(path);
            const std::string name = path.stem().string() + made.extension;
            const auto folder = std::ranges::find_if(
                made.folders, [&name](const fs::path& candidate) { return isThere(candidate / name); });
            if (folder == made.folders.end()) {
                append(sources, path);
            } else {
                appendMade(results, *folder / name, path);
                if (&sources == &tree_.drawings) append(tree_.drawnDrawings, path);
            }
        }
    }

    /// What was made of a source goes by the source's name.
    void appendMade(std::vector<SourceFile>& files, const fs::path& made, const fs::path& source) {
        auto file = readFile(made);
        if (!file) return;
        file->path = source;
        file->madeExtension = made.extension().string();
        files.push_back(std::move(*file));
    }

    /// Takes what was made without a source here.
    void takeMade(Overlay& overlay, std::vector<SourceFile>& files, const std::vector<fs::path>& folders,
                  std::string_view extension) {
        for (const fs::path& folder : folders) {
            std::vector<fs::path> paths = pathsOf(folder, {extension});
            std::erase_if(paths, [&](const fs::path& path) { return overlay.isTakenOfThisLayer(path); });
            for (const fs::path& path : paths) {
                if (overlay.isTaken(path)) continue;
                overlay.take(path);
                appendMade(files, path, path);
            }
        }
    }

    void takeForeignVideos() {
        for (const fs::path& path :
             pathsOf(root_ / "videos", {".mp4", ".mov", ".avi", ".mkv", ".ogv", ".mpg", ".mpeg"})) {
            if (videos_.isTaken(path)) continue;
            videos_.take(path);
            tree_.foreignVideos.push_back({path, {}, layer_, {}});
        }
    }

    Diagnostics& diagnostics_;
    SourceTree tree_;
    std::map<std::string, SectionFolder> sections_;
    Overlay pages_{&pageKey};
    Overlay pictures_{&nameKeyOf};
    Overlay molecules_{&nameKeyOf};
    Overlay videos_{&nameKeyOf};
    Overlay dataSets_{&nameKeyOf};
    Overlay tools_{&nameKeyOf};

    // The layer being read.
    std::size_t layer_ = 0;
    fs::path root_;
};

}  // namespace

SourceTree readSourceTree(const SourceFolders& folders, Diagnostics& diagnostics) {
    const std::vector<Layer> layers = findLayers(folders, diagnostics);
    TreeReader reader(folders.content, diagnostics);
    for (std::size_t i = 0; i < layers.size(); ++i) reader.readLayer(layers[i], i);
    reportIgnoredFiles(folders.content, diagnostics);
    return reader.result();
}

}  // namespace contentc
