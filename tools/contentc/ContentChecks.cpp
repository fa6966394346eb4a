#include "tools/contentc/ContentChecks.h"

#include <algorithm>
#include <map>
#include <set>
#include <utility>

#include "formats/TitleLists.h"
#include "platform/text/CodePage1253.h"
#include "tools/contentc/source/ContentMessages.h"
#include "tools/contentc/source/HtmlCheck.h"

namespace contentc {
namespace {

bool hasTopic(const Content& content, const formats::Section& section, std::int32_t pageId) {
    return std::ranges::any_of(content.pages, [&](const PageSource& page) {
        return page.section == &section && page.kind != PageKind::entry && page.number == pageId;
    });
}

void checkStartPages(const Content& content, const std::filesystem::path& root, Diagnostics& diagnostics) {
    for (const formats::Section& section : formats::sectionTable()) {
        if (hasTopic(content, section, section.startPage)) continue;
        const std::string name = std::to_string(section.startPage) + ".md";
        diagnostics.error({(root / "pages" / section.key / name).generic_string()}, say::noStartPage)
            .suggest(say::makeStartPage, {platform::toUtf8(section.displayName)});
    }
}

// Several list numbers may share one title list; there the entry number alone selects the title.
void checkSharedEntries(const Content& content, Diagnostics& diagnostics) {
    std::map<std::pair<std::string_view, std::int32_t>, const PageSource*> entries;
    for (const PageSource& page : content.pages) {
        const auto file = formats::titleListFile(formats::listNumberOf(page.number));
        if (page.kind != PageKind::entry || !file) continue;
        const std::int32_t entry = formats::entryNumberOf(page.number);
        const auto [first, isNew] = entries.try_emplace({*file, entry}, &page);
        if (isNew || first->second->title.text == page.title.text) continue;
        diagnostics.error(page.title.place, say::entryHasOtherTitle,
                          {entry, *file, shownFile(first->second->place.file)});
    }
}

void checkTerms(const References& references, const Content& content, Diagnostics& diagnostics) {
    std::set<std::string_view> known;
    for (const TermSource& term : content.terms) known.insert(term.key);
    for (const Reference& reference : references.terms) {
        if (!known.contains(reference.name))
            diagnostics.error(reference.place, say::noTermWithKey, {platform::toUtf8(reference.name)});
    }
}

/// Terms of the program's own content are not reported, since the author has not written them.
void checkUnusedTerms(const SourceTree& tree, const Content& content, const References& references,
                      Diagnostics& diagnostics) {
    std::set<std::string_view> used;
    for (const Reference& reference : references.terms) used.insert(reference.name);
    for (const TermSource& term : content.terms) {
        const bool isOwn = term.place.file.starts_with((tree.root / "").generic_string());
        if (isOwn && !used.contains(term.key)) diagnostics.warning(term.place, say::termIsUnused);
    }
}

std::string joined(const std::vector<std::string>& names) {
    std::string text;
    for (const std::string& name : names) text += (text.empty() ? "" : ", ") + name;
    return text;
}

void checkToolSettings(const ToolUse& use, const std::set<std::string>& known, Diagnostics& diagnostics) {
    const std::vector<std::string> names(known.begin(), known.end());
    for (const std::string& setting : use.settings) {
        if (known.contains(setting)) continue;
        if (names.empty()) {
            diagnostics.error(use.place, say::toolWithoutSettings, {use.name, setting});
        } else {
            diagnostics.error(use.place, say::noToolSetting, {use.name, setting, joined(names)});
        }
    }
}

void checkTool(const ToolUse& use, const Tools& tools, Diagnostics& diagnostics) {
    const auto tool = tools.find(use.name);
    if (tool != tools.end()) return checkToolSettings(use, tool->second, diagnostics);
    std::vector<std::string> names;
    for (const auto& [name, settings] : tools) names.push_back(name);
    diagnostics.error(use.place, say::noTool, {use.name}).suggestNearest(use.name, names);
}

/// The names, without extension, of the files of a folder of the data folder.
std::vector<std::string> namesIn(std::string_view folder, const OutputFiles& outputs, bool withExtension) {
    std::vector<std::string> names;
    for (const auto& [key, file] : outputs.files()) {
        if (!key.starts_with(folder)) continue;
        const std::string name = file.path.substr(folder.size());
        names.push_back(withExtension ? file.path : name.substr(0, name.rfind('.')));
    }
    return names;
}

struct FolderOfFiles {
    std::string folder;
    std::string extension;
    const Message& fault;
    /// Where its sources lie.
    const char* sources;
};

void checkFiles(const std::vector<Reference>& references, const FolderOfFiles& files,
                const OutputFiles& outputs, Diagnostics& diagnostics) {
    for (const Reference& reference : references) {
        if (outputs.contains(files.folder + reference.name + files.extension)) continue;
        diagnostics.error(reference.place, files.fault, {reference.name})
            .suggestNearestOr(reference.name, namesIn(files.folder, outputs, false), say::putFileInto,
                              {files.sources});
    }
}

void checkDataPaths(const References& references, const OutputFiles& outputs, Diagnostics& diagnostics) {
    for (const Reference& path : references.dataPaths) {
        if (path.name.empty() || outputs.contains(path.name)) continue;
        const std::string name = platform::toUtf8(path.name);
        const std::string folder = platform::toLower(name.substr(0, name.find_first_of("\\/")));
        diagnostics.error(path.place, say::noDataFile, {name})
            .suggestNearest(name, namesIn(folder, outputs, true));
    }
}

std::string pathKey(std::string path) {
    std::ranges::replace(path, '/', '\\');
    return platform::toLower(path);
}

}  // namespace

void checkContent(const Content& content, const std::filesystem::path& root, Diagnostics& diagnostics) {
    checkStartPages(content, root, diagnostics);
    TermIndex::check(content.terms, diagnostics);
    checkSharedEntries(content, diagnostics);
}

void checkReferences(const References& references, const Content& content, const OutputFiles& outputs,
                     Diagnostics& diagnostics) {
    checkTerms(references, content, diagnostics);
    checkFiles(references.videos, {"video\\", ".webm", say::noVideo, "videos"}, outputs, diagnostics);
    checkFiles(references.molecules, {"mol\\", ".mol", say::noMolecule, "molecules"}, outputs, diagnostics);
    for (const ToolUse& tool : references.tools) checkTool(tool, content.tools, diagnostics);
    checkDataPaths(references, outputs, diagnostics);
}

void checkUnused(const SourceTree& tree, const Content& content, const References& references,
                 Diagnostics& diagnostics) {
    checkUnusedTerms(tree, content, references, diagnostics);
    std::set<std::string> used;
    for (const Reference& path : references.dataPaths) used.insert(pathKey(path.name));
    for (const Reference& video : references.videos) used.insert(pathKey("video\\" + video.name + ".webm"));
    for (const Reference& molecule : references.molecules)
        used.insert(pathKey("mol\\" + molecule.name + ".mol"));
    const auto report = [&](const std::vector<SourceFile>& files, const std::string& folder,
                            const Message& message) {
        for (const SourceFile& file : files) {
            // Pictures that were made from other files are not the author's, and those of the main menu
            // belong to no page.
            const std::string extension = takenExtension(file.path);
            const bool isOwn = file.layer == 0 && extension != file.madeExtension && extension != ".bmp";
            if (isOwn && !used.contains(pathKey(folder + file.name())))
                diagnostics.warning(file.place(), message);
        }
    };
    report(tree.pictures, "images\\", say::pictureIsUnused);
    report(tree.molecules, "mol\\", say::moleculeIsUnused);
    report(tree.videos, "video\\", say::videoIsUnused);
}

void checkClasses(const SourceTree& tree, const Content& content, Diagnostics& diagnostics) {
    std::set<std::string> known;
    if (tree.style) known = classesIn(tree.style->bytes);
    for (const SourceFile& file : tree.tools) {
        if (file.path.extension() == ".css") known.merge(classesIn(file.bytes));
    }
    // Without a style sheet all classes are unknown.
    if (known.empty()) return;
    const std::vector<std::string> names(known.begin(), known.end());
    for (const PageSource& page : content.pages) {
        for (const Reference& name : classesUsed(page.markdown)) {
            if (known.contains(name.name)) continue;
            diagnostics.warning(name.place, say::unknownClass, {name.name}).suggestNearest(name.name, names);
        }
    }
}

}  // namespace contentc
