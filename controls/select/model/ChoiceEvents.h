#pragma once

#include <cstdint>
#include <variant>
#include <vector>

#include "controls/select/model/Place.h"
#include "formats/BrowseIndex.h"

namespace controls::select {

/// The host shows the page and takes the page id as the topic on show, with no entry.
struct PageChosen {
    std::int32_t pageNumber = 0;
    std::int32_t pageId = 0;

    bool operator==(const PageChosen&) const = default;
};

/// The host keeps its topic, takes the item code as the entry on show and shows the page of that number.
struct ItemChosen {
    std::int32_t itemCode = 0;

    bool operator==(const ItemChosen&) const = default;
};

using ChoiceEvent = std::variant<PageChosen, ItemChosen>;
using ChoiceEvents = std::vector<ChoiceEvent>;

/// Whether the host opens this page itself when it returns to it, without asking for its entry: the start
/// page of a section, or any multiple of 10000.
bool isStartPage(std::int32_t pageId);

/// The answer to a host that asks for a place, known to the section or not (`section` may be null). Empty
/// when the place names no page at all.
ChoiceEvents answerTo(const Place& asked, const formats::BrowseSection* section);

/// What the reader's choice of a topic's own page raises.
ChoiceEvents choiceOf(const formats::BrowseTopic& topic);

/// What the reader's choice of an entry raises, so that the host's address leads back to the entry: its topic
/// first when the host shows another one. An entry of a start page counts as a page of its own, because the
/// host would return to the start page alone.
ChoiceEvents choiceOf(const formats::BrowseTopic& topic, const formats::BrowseEntry& entry,
                      const Place& shown);

}  // namespace controls::select
