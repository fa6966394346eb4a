#include "tools/contentc/ContentChecks.h"

#include <algorithm>
#include <map>
#include <set>
#include <utility>

#include "formats/TitleLists.h"

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
        const std::string name = std::to_string(section.startPage) + ".page";
        diagnostics.error({(root / "pages" / section.key / name).generic_string()},
                          "start page of the section missing");
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
        diagnostics.error(page.title.place, "entry " + std::to_string(entry) + " of '" + std::string(*file) +
                                                "' has another title in " + first->second->place.file);
    }
}

void checkTerms(const References& references, const Content& content, Diagnostics& diagnostics) {
    std::set<std::string_view> known;
    std::set<std::string_view> used;
    for (const TermSource& term : content.terms) known.insert(term.key);
    for (const Reference& reference : references.terms) {
        used.insert(reference.name);
        if (known.contains(reference.name)) continue;
        diagnostics.error(reference.place, "no glossary term has the key '" + reference.name + '\'');
    }
    for (const TermSource& term : content.terms) {
        if (!used.contains(term.key)) diagnostics.warning(term.place, "no page uses this term");
    }
}

std::string joined(const std::set<std::string>& names) {
    std::string text;
    for (const std::string& name : names) text += (text.empty() ? "" : ", ") + name;
    return text;
}

void checkTool(const ToolUse& use, const Tools& tools, Diagnostics& diagnostics) {
    const auto tool = tools.find(use.name);
    if (tool == tools.end()) {
        diagnostics.error(use.place, "no tool is named '" + use.name + '\'');
        return;
    }
    for (const std::string& setting : use.settings) {
        if (tool->second.contains(setting)) continue;
        const std::string has = tool->second.empty() ? "none" : joined(tool->second);
        diagnostics.error(use.place,
                          "tool '" + use.name + "' has no setting '" + setting + "'; its settings: " + has);
    }
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
    for (const Reference& video : references.videos) {
        if (outputs.contains("video\\" + video.name + ".webm")) continue;
        diagnostics.error(video.place, "no video is named '" + video.name + '\'');
    }
    for (const Reference& molecule : references.molecules) {
        if (outputs.contains("mol\\" + molecule.name + ".mol")) continue;
        diagnostics.error(molecule.place, "no molecule is named '" + molecule.name + '\'');
    }
    for (const ToolUse& tool : references.tools) checkTool(tool, content.tools, diagnostics);
    for (const Reference& path : references.dataPaths) {
        if (path.name.empty() || outputs.contains(path.name)) continue;
        diagnostics.error(path.place, "the data folder has no file " + inQuotes(path.name));
    }
}

}  // namespace contentc
