#pragma once

#include <cstdint>
#include <variant>
#include <vector>

#include "controls/select/model/Place.h"
#include "formats/BrowseIndex.h"

namespace controls::select {

/// The reader has chosen a page. The host shows it, and takes the page id as its topic, without an entry.
struct PageChosen {
    std::int32_t pageNumber = 0;
    std::int32_t pageId = 0;

    bool operator==(const PageChosen&) const = default;
};

/// The reader has chosen an entry. The host keeps its topic, takes the item code as its entry and shows the
/// page with that number.
struct ItemChosen {
    std::int32_t itemCode = 0;

    bool operator==(const ItemChosen&) const = default;
};

using ChoiceEvent = std::variant<PageChosen, ItemChosen>;
using ChoiceEvents = std::vector<ChoiceEvent>;

/// The answer to a host that asks for a place. The section need not have the place, and may be null. Empty
/// when the place names no page.
ChoiceEvents answerTo(const Place& asked, const formats::BrowseSection* section);

/// The events for the reader's choice of a topic's own page.
ChoiceEvents choiceOf(const formats::BrowseTopic& topic);

/// The events for the reader's choice of an entry. They make the host's address lead back to the entry: first
/// comes its topic when the host shows another one. An entry of a start page is chosen as a page of its own,
/// because the host would return to the start page only.
ChoiceEvents choiceOf(const formats::BrowseTopic& topic, const formats::BrowseEntry& entry,
                      const Place& shown);

}  // namespace controls::select
