#include "tools/contentc/source/PageIndex.h"

#include <algorithm>

#include "platform/text/CodePage1253.h"
#include "tools/contentc/source/HeadMessages.h"
#include "tools/contentc/source/NameKey.h"

namespace contentc {
namespace {

std::vector<std::string> topicTitles(const std::vector<PageSource>& pages, const formats::Section& section) {
    std::vector<std::string> titles;
    for (const PageSource& page : pages) {
        if (page.section == &section && page.kind != PageKind::entry)
            titles.push_back(platform::toUtf8(page.title.text));
    }
    return titles;
}

}  // namespace

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

std::vector<std::string> PageIndex::titles() const {
    std::vector<std::string> titles;
    titles.reserve(byNumber_.size());
    for (const auto& [number, page] : byNumber_) titles.push_back(platform::toUtf8(page->title.text));
    return titles;
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
        const std::string name = platform::toUtf8(entry.topicName.text);
        Diagnostic& error = diagnostics.error(entry.topicName.place, say::unknownTopic,
                                              {entry.section->key, number ? name : '\'' + name + '\''});
        if (!number) error.suggestNearest(name, topicTitles(pages, *entry.section));
    }
}

}  // namespace contentc
