#include "tools/contentc/source/PageIndex.h"

#include <algorithm>

#include "tools/contentc/source/NameKey.h"

namespace contentc {

PageIndex::PageIndex(const std::vector<PageSource>& pages) {
    for (const PageSource& page : pages) {
        byNumber_.try_emplace(page.number, &page);
        byTitle_[nameKey(page.title.text)].push_back(&page);
    }
}

PageIndex::Found PageIndex::find(std::string_view name, const PageSource& from) const {
    if (const auto number = parseNumber(name)) {
        const auto found = byNumber_.find(*number);
        return {found == byNumber_.end() ? nullptr : found->second};
    }
    const auto found = byTitle_.find(nameKey(name));
    if (found == byTitle_.end()) return {};
    const auto rank = [&from](const PageSource* page) {
        return std::pair(page->section != from.section, page->kind == PageKind::entry);
    };
    std::vector<const PageSource*> pages = found->second;
    if (pages.size() > 1) std::erase(pages, &from);
    std::ranges::stable_sort(pages, {}, rank);
    const bool isAmbiguous = pages.size() > 1 && rank(pages[0]) == rank(pages[1]);
    return {pages.front(), isAmbiguous};
}

void resolveTopics(std::vector<PageSource>& pages, Diagnostics& diagnostics) {
    const auto isTopic = [](const PageSource& page, const PageSource& entry) {
        return page.section == entry.section && page.kind != PageKind::entry;
    };
    for (PageSource& entry : pages) {
        if (entry.kind != PageKind::entry || entry.topicName.text.empty()) continue;
        const auto number = parseNumber(entry.topicName.text);
        const std::string title = nameKey(entry.topicName.text);
        const auto topic = std::ranges::find_if(pages, [&](const PageSource& page) {
            return isTopic(page, entry) &&
                   (number ? page.number == *number : nameKey(page.title.text) == title);
        });
        if (topic != pages.end()) {
            entry.topic = topic->number;
            continue;
        }
        const std::string name = number ? entry.topicName.text : inQuotes(entry.topicName.text);
        diagnostics.error(entry.topicName.place,
                          "section '" + std::string(entry.section->key) + "' has no topic " + name);
    }
}

}  // namespace contentc
