#include "tools/contentc/source/SourceTree.h"

#include <algorithm>
#include <fstream>
#include <iterator>
#include <string_view>

namespace contentc {
namespace {

namespace fs = std::filesystem;

/// The entries of a folder sorted by path, without hidden ones; none when there is no such folder.
std::vector<fs::path> listFolder(const fs::path& folder) {
    std::vector<fs::path> entries;
    std::error_code failed;
    for (fs::directory_iterator it(folder, failed), end; !failed && it != end; it.increment(failed)) {
        if (!it->path().filename().string().starts_with('.')) entries.push_back(it->path());
    }
    std::ranges::sort(entries);
    return entries;
}

void append(std::vector<SourceFile>& files, std::vector<SourceFile> more) {
    std::ranges::move(more, std::back_inserter(files));
}

class TreeReader {
  public:
    explicit TreeReader(Diagnostics& diagnostics) : diagnostics_(diagnostics) {}

    std::optional<SourceFile> readFile(const fs::path& path) {
        std::ifstream stream(path, std::ios::binary);
        SourceFile file{path, {std::istreambuf_iterator<char>(stream), {}}};
        if (stream.is_open() && !stream.bad()) return file;
        diagnostics_.error(file.place(), "cannot be read");
        return std::nullopt;
    }

    std::optional<SourceFile> readFileIfPresent(const fs::path& path) {
        return fs::exists(path) ? readFile(path) : std::nullopt;
    }

    /// The files of a folder that have one of the extensions.
    std::vector<SourceFile> readFiles(const fs::path& folder,
                                      std::initializer_list<std::string_view> extensions) {
        std::vector<SourceFile> files;
        for (const fs::path& path : listFolder(folder)) {
            if (std::ranges::find(extensions, path.extension().string()) == extensions.end()) continue;
            if (auto file = readFile(path)) files.push_back(std::move(*file));
        }
        return files;
    }

    /// Like `readFiles`, but a file with another extension is reported, because its content would be lost.
    std::vector<SourceFile> readFilesStrictly(const fs::path& folder, std::string_view extension) {
        for (const fs::path& path : listFolder(folder)) {
            if (path.extension() == extension) continue;
            diagnostics_.error({path.generic_string()},
                               std::string("not a *").append(extension).append(" file"));
        }
        return readFiles(folder, {extension});
    }

    std::vector<SectionFolder> readSections(const fs::path& folder) {
        std::vector<SectionFolder> sections;
        for (const fs::path& path : listFolder(folder)) {
            sections.push_back({{path, {}}, readFilesStrictly(path, ".page")});
        }
        return sections;
    }

    /// The files with one of the extensions in the folders below a folder.
    std::vector<SourceFile> readFilesBelow(const fs::path& folder,
                                           std::initializer_list<std::string_view> extensions) {
        std::vector<SourceFile> files;
        for (const fs::path& path : listFolder(folder)) append(files, readFiles(path, extensions));
        return files;
    }

  private:
    Diagnostics& diagnostics_;
};

}  // namespace

SourceTree readSourceTree(const SourceFolders& folders, Diagnostics& diagnostics) {
    const fs::path& root = folders.content;
    TreeReader reader(diagnostics);
    SourceTree tree;
    tree.root = root;
    tree.startPage = reader.readFileIfPresent(root / "start.page");
    tree.helpPage = reader.readFileIfPresent(root / "help.page");
    tree.pageTemplate = reader.readFileIfPresent(root / "templates/page.html");
    tree.moleculeTemplate = reader.readFileIfPresent(root / "templates/molecule.html");
    tree.style = reader.readFileIfPresent(root / "style.css");
    tree.elements = reader.readFileIfPresent(root / "elements.txt");
    tree.stopWords = reader.readFileIfPresent(root / "words/stop.txt");
    tree.wordForms = reader.readFileIfPresent(root / "words/forms.txt");
    tree.sections = reader.readSections(root / "pages");
    tree.terms = reader.readFilesStrictly(root / "glossary", ".term");
    tree.dataSets = reader.readFilesStrictly(root / "datasets", ".data");
    tree.molecules = reader.readFiles(root / "molecules", {".mol"});
    tree.tools = reader.readFilesBelow(root / "tools", {".js", ".css", ".txt"});
    tree.drawings = reader.readFiles(root / "pictures", {".svg"});
    tree.pictures = reader.readFiles(root / "pictures", {".png"});
    for (const fs::path& images : folders.images)
        append(tree.pictures, reader.readFiles(images, {".bmp", ".png"}));
    for (const fs::path& media : folders.media) append(tree.videos, reader.readFiles(media, {".webm"}));
    return tree;
}

}  // namespace contentc
