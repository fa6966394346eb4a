#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "controls/select/model/ChoiceEvents.h"
#include "controls/select/model/Place.h"
#include "controls/select/model/TopicList.h"
#include "formats/BrowseIndex.h"

namespace controls::select {

/// The state of the browse selection: the section listed, the place that the host shows, and what each
/// request or choice is answered with. The caller raises the events that it returns.
class BrowseSelection {
  public:
    BrowseSelection() = default;
    BrowseSelection(const BrowseSelection&) = delete;
    BrowseSelection& operator=(const BrowseSelection&) = delete;

    /// Starts anew with an index, no section and no place.
    void setIndex(formats::BrowseIndex index);

    /// 0 until a section is set.
    std::int16_t section() const { return section_; }
    const Place& shown() const { return shown_; }
    TopicList& list() { return list_; }
    const TopicList& list() const { return list_; }

    /// Lists a section; the same one again keeps its narrowing and opened topics. Its start page counts as
    /// shown from now on, for the host opens it unless it asks for another place at once.
    void setSection(std::int16_t code);

    /// The section that has the place, the current one first; the current one when none has.
    std::int16_t sectionOf(const Place& place) const;

    /// Shows a place that the host asks for, in its section and with its topic opened. A negative item code
    /// stands for the topic's own page.
    ChoiceEvents show(const Place& place);

    /// Shows the line that the reader has chosen, which must be a line of the section.
    ChoiceEvents choose(const Row& row);

    /// The line of the place on show: its entry, else its topic; nothing when the section has neither.
    const std::optional<Row>& shownRow() const { return shownRow_; }

    /// The title of a page in the index: a topic, or an entry of that number; empty when unknown.
    std::string pageTitle(std::int32_t pageId) const;
    /// The title of an entry in the index, the current section first; empty when unknown.
    std::string itemTitle(std::int32_t itemCode) const;

  private:
    const formats::BrowseSection* currentSection() const { return formats::findSection(index_, section_); }
    const formats::BrowseEntry* entryOf(std::int32_t itemCode) const;
    void setShown(const Place& place);
    void openShown();

    formats::BrowseIndex index_;
    std::int16_t section_ = 0;
    Place shown_;
    // Kept because each drawn and measured line asks for it.
    std::optional<Row> shownRow_;
    TopicList list_;
};

}  // namespace controls::select
