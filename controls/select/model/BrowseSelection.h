#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "controls/select/model/ChoiceEvents.h"
#include "controls/select/model/Place.h"
#include "controls/select/model/TopicList.h"
#include "formats/BrowseIndex.h"

namespace controls::select {

/// A title of another section.
struct FoundElsewhere {
    std::int16_t section = 0;
    Row row;
    std::string title;
};

/// The state of the browse selection: the section that is listed and the place that the host shows. It
/// answers requests of the host and choices of the reader with events, which the caller raises.
class BrowseSelection {
  public:
    BrowseSelection() = default;
    BrowseSelection(const BrowseSelection&) = delete;
    BrowseSelection& operator=(const BrowseSelection&) = delete;

    /// Sets a new index and forgets section and place.
    void setIndex(formats::BrowseIndex index);

    /// 0 until a section is set.
    std::int16_t section() const { return section_; }
    const Place& shown() const { return shown_; }
    TopicList& list() { return list_; }
    const TopicList& list() const { return list_; }

    /// Lists a section. Setting the same section again keeps the filter and the opened topics. The start page
    /// of the section becomes the place shown, because the host opens it, unless it asks for another place
    /// next.
    void setSection(std::int16_t code);

    /// The section that has the place: the current section if it or no section has it, else another one.
    std::int16_t sectionOf(const Place& place) const;

    /// Shows a place that the host asks for, in its section and with its topic opened. A negative item code
    /// stands for the topic's own page.
    ChoiceEvents show(const Place& place);

    /// Shows the line that the reader has chosen. It must be a line of the section.
    ChoiceEvents choose(const Row& row);

    /// The first titles of the other sections that pass the filter for a text, so many at most.
    std::vector<FoundElsewhere> findElsewhere(std::string_view text, std::size_t limit) const;

    /// The line of the place that is shown: its entry, else its topic; nothing when the section has neither.
    const std::optional<Row>& shownRow() const { return shownRow_; }

    /// The title of the topic with this page id, else of the entry with this number; empty when there is
    /// none.
    std::string pageTitle(std::int32_t pageId) const;
    /// The title of an entry, looked up in the current section first; empty when there is none.
    std::string itemTitle(std::int32_t itemCode) const;

  private:
    const formats::BrowseSection* currentSection() const { return formats::findSection(index_, section_); }
    const formats::BrowseEntry* entryOf(std::int32_t itemCode) const;
    void setShown(const Place& place);
    void openShown();

    formats::BrowseIndex index_;
    std::int16_t section_ = 0;
    Place shown_;
    // Kept, because every line asks for it when it is drawn or measured.
    std::optional<Row> shownRow_;
    TopicList list_;
};

}  // namespace controls::select
