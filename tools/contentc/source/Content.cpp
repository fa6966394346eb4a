#include "tools/contentc/source/Content.h"

#include <algorithm>
#include <map>
#include <set>
#include <string>
#include <tuple>

#include "tools/contentc/source/ContentMessages.h"
#include "tools/contentc/source/ElementPages.h"
#include "tools/contentc/source/NameKey.h"
#include "tools/contentc/source/PageIndex.h"
#include "tools/contentc/source/Parallel.h"

namespace contentc {
namespace {

bool pageComesBefore(const PageSource* a, const PageSource* b) {
    const auto rank = [](const PageSource& page) {
        return std::tuple(page.kind != PageKind::start, page.order, page.number);
    };
    return rank(*a) < rank(*b);
}

template <typename Condition>
std::vector<const PageSource*> pagesInOrder(const Content& content, Condition isWanted) {
    std::vector<const PageSource*> wanted;
    for (const PageSource& page : content.pages) {
        if (isWanted(page)) wanted.push_back(&page);
    }
    std::ranges::sort(wanted, pageComesBefore);
    return wanted;
}

std::optional<PageSource> readRequiredPage(const std::optional<SourceFile>& file,
                                           const std::filesystem::path& path, Diagnostics& diagnostics) {
    if (file) return readPlainPage(*file, diagnostics);
    diagnostics.error({path.generic_string()}, say::isMissing);
    return std::nullopt;
}

std::vector<std::string> sectionKeys() {
    std::vector<std::string> keys;
    for (const formats::Section& section : formats::sectionTable()) keys.emplace_back(section.key);
    return keys;
}

/// The list of an entry, and the section that a topic's number suits.
constexpr std::int32_t groupOf(std::int32_t number) { return number / 10'000 * 10'000; }

/// The first free number of an author's own: topics from SS9000 on, entries from 5000 on in their list.
std::int32_t freeNumber(const PageSource& page, const std::set<std::int32_t>& taken) {
    constexpr std::int32_t firstOwnEntry = 5000;
    const bool isEntry = page.kind == PageKind::entry;
    std::int32_t number = isEntry ? groupOf(page.number) + firstOwnEntry : firstOwnTopic(*page.section);
    while (taken.contains(number)) ++number;
    return number;
}

/// Of pages with one number the first stays whose section it suits, and the others are reported.
void dropSecondPages(std::vector<PageSource>& pages, Diagnostics& diagnostics) {
    std::map<std::int32_t, std::string> files;
    std::set<std::int32_t> taken;
    for (const PageSource& page : pages) {
        taken.insert(page.number);
        const bool suits = groupOf(page.number) == groupOf(page.section->startPage);
        if (suits) files.try_emplace(page.number, page.place.file);
    }
    for (const PageSource& page : pages) files.try_emplace(page.number, page.place.file);
    std::erase_if(pages, [&](const PageSource& page) {
        const std::string& first = files[page.number];
        if (first == page.place.file) return false;
        diagnostics.error(page.place, say::numberIsTaken, {page.number, shownFile(first)})
            .suggest(say::takeNumber, {freeNumber(page, taken)});
        return true;
    });
}

/// Reads terms from the top layer down. What a term of a higher layer is called means that term, so a lower
/// one of that name is left out and others lose the form.
void readLayeredTerms(const std::vector<SourceFile>& files, std::vector<TermSource>& terms,
                      Diagnostics& diagnostics) {
    std::set<std::string> above;
    std::set<std::string> ofLayer;
    std::size_t layer = 0;
    const auto isAbove = [&above](const std::string& name) { return above.contains(nameKey(name)); };
    for (const SourceFile& file : files) {
        if (file.layer != layer) above.merge(ofLayer);
        layer = file.layer;
        for (TermSource& term : readTerms(file, diagnostics)) {
            if (isAbove(term.term)) continue;
            std::erase_if(term.forms, isAbove);
            ofLayer.insert(nameKey(term.term));
            for (const std::string& form : term.forms) ofLayer.insert(nameKey(form));
            terms.push_back(std::move(term));
        }
    }
}

void readSection(const SectionFolder& folder, Content& content, Diagnostics& diagnostics) {
    const formats::Section* section = formats::sectionByKey(folder.folder.name());
    if (!section) {
        const std::string name = folder.folder.path.filename().string();
        diagnostics.error(folder.folder.place(), say::unknownSection, {name})
            .suggestNearest(name, sectionKeys());
        return;
    }
    std::vector<std::optional<PageSource>> pages(folder.pages.size());
    std::vector<Diagnostics> found(folder.pages.size());
    inParallel(pages.size(), pagesForThread,
               [&](std::size_t i) { pages[i] = readSectionPage(folder.pages[i], *section, found[i]); });
    for (std::size_t i = 0; i < pages.size(); ++i) {
        if (auto& page = pages[i]) content.pages.push_back(*std::move(page));
        diagnostics.add(std::move(found[i]));
    }
}

}  // namespace

Content readContent(const SourceTree& tree, Diagnostics& diagnostics) {
    Content content;
    content.startPage = readRequiredPage(tree.startPage, tree.root / "start.md", diagnostics);
    if (tree.helpPage) content.helpPage = readPlainPage(*tree.helpPage, diagnostics);
    for (const SectionFolder& folder : tree.sections) readSection(folder, content, diagnostics);
    dropSecondPages(content.pages, diagnostics);
    if (tree.families) addElementPages(*tree.families, content.pages, diagnostics);
    resolveTopics(content.pages, diagnostics);
    readLayeredTerms(tree.terms, content.terms, diagnostics);
    giveKeys(content.terms);
    content.words = readWords(tree.stopWords, tree.wordForms, diagnostics);
    content.tools = readTools(tree.tools, diagnostics);
    return content;
}

std::vector<const PageSource*> topicsOf(const Content& content, const formats::Section& section) {
    return pagesInOrder(content, [&section](const PageSource& page) {
        return page.section == &section && page.kind != PageKind::entry;
    });
}

std::vector<const PageSource*> entriesOf(const Content& content, const PageSource& topic) {
    return pagesInOrder(content, [&topic](const PageSource& page) {
        return page.section == topic.section && page.kind == PageKind::entry && page.topic == topic.number;
    });
}

const PageSource* elementPage(const Content& content, int atomicNumber) {
    const auto found = std::ranges::find_if(content.pages, [atomicNumber](const PageSource& page) {
        return page.section->key == "elemcomp" && page.kind == PageKind::entry &&
               page.number == elementPageNumber(atomicNumber);
    });
    return found == content.pages.end() ? nullptr : &*found;
}

}  // namespace contentc
