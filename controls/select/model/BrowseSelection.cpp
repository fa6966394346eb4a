#include "controls/select/model/BrowseSelection.h"

#include <algorithm>
#include <utility>

#include "formats/SectionTable.h"
#include "platform/text/Fold.h"

namespace controls::select {

namespace {

using formats::BrowseEntry;
using formats::BrowseSection;
using formats::BrowseTopic;

std::optional<std::size_t> entryPosition(const BrowseTopic& topic, std::int32_t itemCode) {
    const auto found = std::ranges::find(topic.entries, itemCode, &BrowseEntry::itemCode);
    if (found == topic.entries.end()) return std::nullopt;
    return static_cast<std::size_t>(found - topic.entries.begin());
}

std::optional<Row> rowOfEntry(const BrowseSection& section, std::int32_t itemCode) {
    for (std::size_t topic = 0; topic < section.topics.size(); ++topic) {
        if (const auto entry = entryPosition(section.topics[topic], itemCode)) return Row{topic, entry};
    }
    return std::nullopt;
}

/// The line of a place. When its topic is unknown, the line of the entry with its item code or page id: an
/// entry of a start page is a page of its own.
std::optional<Row> rowOf(const BrowseSection& section, const Place& place) {
    const auto topic = std::ranges::find(section.topics, place.pageId, &BrowseTopic::pageId);
    if (topic == section.topics.end()) {
        return rowOfEntry(section, place.itemCode > 0 ? place.itemCode : place.pageId);
    }
    return Row{static_cast<std::size_t>(topic - section.topics.begin()),
               entryPosition(*topic, place.itemCode)};
}

void addMatches(const BrowseSection& section, const TitleFilter& filter, std::size_t limit,
                std::vector<FoundElsewhere>& found) {
    const auto add = [&](const Row& row, const std::string& title) {
        if (found.size() < limit && filter.passes(platform::fold(title))) {
            found.push_back({section.code, row, title});
        }
    };
    for (std::size_t topic = 0; topic < section.topics.size(); ++topic) {
        add({topic, std::nullopt}, section.topics[topic].title);
        const auto& entries = section.topics[topic].entries;
        for (std::size_t entry = 0; entry < entries.size(); ++entry)
            add({topic, entry}, entries[entry].title);
    }
}

}  // namespace

void BrowseSelection::setIndex(formats::BrowseIndex index) {
    list_.setSection(nullptr);
    index_ = std::move(index);
    section_ = 0;
    setShown({});
}

void BrowseSelection::setSection(std::int16_t code) {
    if (code != section_) {
        section_ = code;
        list_.setSection(currentSection());
    }
    const formats::Section* section = formats::sectionByCode(code);
    setShown({section ? section->startPage : 0, 0});
}

std::int16_t BrowseSelection::sectionOf(const Place& place) const {
    const BrowseSection* current = currentSection();
    if (current && rowOf(*current, place)) return section_;
    for (const BrowseSection& section : index_.sections) {
        if (rowOf(section, place)) return section.code;
    }
    return section_;
}

ChoiceEvents BrowseSelection::show(const Place& place) {
    if (const std::int16_t section = sectionOf(place); section != section_) setSection(section);
    ChoiceEvents events = answerTo(place, currentSection());
    if (!events.empty()) {
        setShown(place);
        openShown();
    }
    return events;
}

ChoiceEvents BrowseSelection::choose(const Row& row) {
    const BrowseTopic& topic = currentSection()->topics[row.topic];
    ChoiceEvents events = row.entry ? choiceOf(topic, topic.entries[*row.entry], shown_) : choiceOf(topic);
    Place place = shown_;
    if (const auto* page = std::get_if<PageChosen>(&events.front())) place = {page->pageId, 0};
    if (const auto* item = std::get_if<ItemChosen>(&events.back())) place.itemCode = item->itemCode;
    setShown(place);
    openShown();
    return events;
}

std::vector<FoundElsewhere> BrowseSelection::findElsewhere(std::string_view text, std::size_t limit) const {
    std::vector<FoundElsewhere> found;
    const TitleFilter filter(text);
    for (const BrowseSection& section : index_.sections) {
        if (section.code != section_) addMatches(section, filter, limit, found);
    }
    return found;
}

void BrowseSelection::setShown(const Place& place) {
    const BrowseSection* section = currentSection();
    shown_ = place;
    shownRow_ = section && place.pageId > 0 ? rowOf(*section, place) : std::nullopt;
}

void BrowseSelection::openShown() {
    if (shownRow_) list_.openLastingly(shownRow_->topic);
}

std::string BrowseSelection::pageTitle(std::int32_t pageId) const {
    const BrowseSection* section = currentSection();
    const BrowseTopic* topic = section ? formats::findTopic(*section, pageId) : nullptr;
    if (!topic) topic = formats::findTopic(index_, pageId);
    return topic ? topic->title : itemTitle(pageId);
}

std::string BrowseSelection::itemTitle(std::int32_t itemCode) const {
    const BrowseEntry* entry = entryOf(itemCode);
    return entry ? entry->title : std::string();
}

const BrowseEntry* BrowseSelection::entryOf(std::int32_t itemCode) const {
    if (const BrowseSection* section = currentSection()) {
        if (const auto row = rowOfEntry(*section, itemCode); row && row->entry)
            return &section->topics[row->topic].entries[*row->entry];
    }
    const auto place = formats::findEntry(index_, itemCode);
    return place ? place->entry : nullptr;
}

}  // namespace controls::select
