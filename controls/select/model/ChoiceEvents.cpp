#include "controls/select/model/ChoiceEvents.h"

#include "formats/SectionTable.h"

namespace controls::select {

namespace {

// A start page is always answered by its own id, because the host has already opened it under that number.
std::int32_t pageNumberOf(std::int32_t pageId, const formats::BrowseTopic* topic) {
    return topic && !formats::isStartPage(pageId) ? topic->pageNumber : pageId;
}

}  // namespace

ChoiceEvents answerTo(const Place& asked, const formats::BrowseSection* section) {
    if (asked.itemCode > 0) return {ItemChosen{asked.itemCode}};
    if (asked.pageId <= 0) return {};
    const formats::BrowseTopic* topic = section ? formats::findTopic(*section, asked.pageId) : nullptr;
    return {PageChosen{pageNumberOf(asked.pageId, topic), asked.pageId}};
}

ChoiceEvents choiceOf(const formats::BrowseTopic& topic) {
    return {PageChosen{pageNumberOf(topic.pageId, &topic), topic.pageId}};
}

ChoiceEvents choiceOf(const formats::BrowseTopic& topic, const formats::BrowseEntry& entry,
                      const Place& shown) {
    if (formats::isStartPage(topic.pageId)) return {PageChosen{entry.itemCode, entry.itemCode}};
    ChoiceEvents events;
    if (shown.pageId != topic.pageId) events = choiceOf(topic);
    events.emplace_back(ItemChosen{entry.itemCode});
    return events;
}

}  // namespace controls::select
