#include "tools/contentc/markdown/PageRelations.h"

#include <algorithm>
#include <set>

#include "formats/TitleLists.h"
#include "platform/text/CodePage1253.h"
#include "tools/contentc/markdown/PageAddresses.h"

namespace contentc {
namespace {

constexpr std::int32_t listOfElements = 1;

/// Takes out the page itself and those that are named already.
void keepNew(std::vector<const PageSource*>& pages, std::set<const PageSource*>& named) {
    std::erase_if(pages, [&named](const PageSource* page) { return !named.insert(page).second; });
}

void addOnce(std::vector<const PageSource*>& pages, const PageSource* page) {
    if (std::ranges::find(pages, page) == pages.end()) pages.push_back(page);
}

}  // namespace

bool isElementPage(const PageSource& page) {
    return page.kind == PageKind::entry && formats::listNumberOf(page.number) == listOfElements;
}

PageRelations::PageRelations(const Content& content, const PageIndex& pages, Diagnostics& diagnostics) {
    addNamed(content, pages, diagnostics);
    addSequences(content);
}

const PageRelation& PageRelations::of(const PageSource& page) const {
    static const PageRelation none;
    const auto found = relations_.find(&page);
    return found == relations_.end() ? none : found->second;
}

void PageRelations::addNamed(const Content& content, const PageIndex& pages, Diagnostics& diagnostics) {
    const auto find = [&](const PageSource& from, const TextLine& name) {
        return findPage({platform::toUtf8(name.text), name.place}, pages, from, diagnostics);
    };
    for (const PageSource& page : content.pages) {
        for (const TextLine& name : page.before) {
            const PageSource* before = find(page, name);
            if (!before) continue;
            addOnce(relations_[&page].before, before);
            addOnce(relations_[before].after, &page);
        }
        for (const TextLine& name : page.after) {
            if (const PageSource* after = find(page, name)) addOnce(relations_[&page].after, after);
        }
        for (const TextLine& name : page.see) {
            if (const PageSource* other = find(page, name)) addOnce(relations_[&page].see, other);
        }
    }
    for (auto& [page, relation] : relations_) {
        std::set<const PageSource*> named{page};
        for (auto* list : {&relation.before, &relation.after, &relation.see}) keepNew(*list, named);
    }
}

void PageRelations::addSequences(const Content& content) {
    std::vector<const PageSource*> elements;
    for (const formats::Section& section : formats::sectionTable()) {
        std::vector<const PageSource*> topics = topicsOf(content, section);
        for (const PageSource* topic : topics) {
            std::vector<const PageSource*> entries = entriesOf(content, *topic);
            std::ranges::copy_if(entries, std::back_inserter(elements),
                                 [](const PageSource* page) { return isElementPage(*page); });
            std::erase_if(entries, [](const PageSource* page) { return isElementPage(*page); });
            addSequence(entries);
        }
        std::erase_if(topics, [](const PageSource* page) { return page->kind == PageKind::start; });
        addSequence(topics);
    }
    std::ranges::sort(elements, {}, &PageSource::number);
    addSequence(elements);
}

void PageRelations::addSequence(const std::vector<const PageSource*>& pages) {
    for (std::size_t i = 1; i < pages.size(); ++i) {
        relations_[pages[i]].previous = pages[i - 1];
        relations_[pages[i - 1]].next = pages[i];
    }
}

}  // namespace contentc
