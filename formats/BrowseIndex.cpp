#include "formats/BrowseIndex.h"

#include <algorithm>

#include "formats/PageNumber.h"
#include "formats/SectionTable.h"

namespace formats {
namespace {

BrowseSection sectionFromTitles(const SectionTitleFile& file) {
    BrowseSection section{file.sectionCode, {}};
    for (SectionTitleRecord& record : decodeSectionTitles(file.image)) {
        if (!pagePath(record.pageId)) continue;
        section.topics.push_back({record.pageId, record.pageId, std::move(record.title), {}});
    }
    return section;
}

}  // namespace

const BrowseSection* findSection(const BrowseIndex& index, std::int16_t code) {
    const auto found = std::ranges::find(index.sections, code, &BrowseSection::code);
    return found == index.sections.end() ? nullptr : &*found;
}

const BrowseTopic* findTopic(const BrowseSection& section, std::int32_t pageId) {
    const auto found = std::ranges::find(section.topics, pageId, &BrowseTopic::pageId);
    return found == section.topics.end() ? nullptr : &*found;
}

const BrowseTopic* findTopic(const BrowseIndex& index, std::int32_t pageId) {
    for (const BrowseSection& section : index.sections) {
        if (const BrowseTopic* topic = findTopic(section, pageId)) return topic;
    }
    return nullptr;
}

std::optional<BrowseEntryPlace> findEntry(const BrowseIndex& index, std::int32_t itemCode) {
    for (const BrowseSection& section : index.sections) {
        for (const BrowseTopic& topic : section.topics) {
            const auto found = std::ranges::find(topic.entries, itemCode, &BrowseEntry::itemCode);
            if (found != topic.entries.end()) return BrowseEntryPlace{&section, &topic, &*found};
        }
    }
    return std::nullopt;
}

BrowseIndex browseIndexFromTitles(std::span<const SectionTitleFile> files) {
    BrowseIndex index;
    for (const SectionTitleFile& file : files) {
        if (!sectionByCode(file.sectionCode) || findSection(index, file.sectionCode)) continue;
        index.sections.push_back(sectionFromTitles(file));
    }
    return index;
}

}  // namespace formats
