#pragma once

#include <cstddef>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "controls/select/model/Place.h"
#include "controls/select/model/TitleFilter.h"
#include "formats/BrowseIndex.h"

namespace controls::select {

/// The topics of one section as they are listed: all of them or those that pass the filter, each opened or
/// closed.
class TopicList {
  public:
    /// A topic that is listed, and its entries that are listed. Both are positions in the section, from 0.
    struct ListedTopic {
        std::size_t topic = 0;
        /// Whether its own title passes the filter.
        bool passes = true;
        std::vector<std::size_t> entries;
    };

    /// Lists all topics of a section, closed. The section must exist as long as it is listed. Null lists
    /// nothing.
    void setSection(const formats::BrowseSection* section);

    /// Lists only what matches the text. When entries of a topic pass the filter, the topic is listed opened,
    /// with these entries. When only its title passes, it is listed closed, with all entries. A blank text
    /// lists everything again, and the topics are opened as before.
    void narrow(std::string_view text);
    bool narrowed() const { return filter_.active(); }

    std::span<const ListedTopic> topics() const { return listed_; }
    bool contains(const Row& row) const;

    /// The first line whose own title passes the filter. Nothing when the list is not narrowed or is empty.
    std::optional<Row> firstMatch() const;

    /// Whether a topic is opened; topics are named by their positions in the section. Topics opened or closed
    /// in a narrowed list are so only until the list changes.
    bool opened(std::size_t topic) const;
    void setOpened(std::size_t topic, bool opened);
    /// Opens a topic in the narrowed list and in the whole list.
    void openLastingly(std::size_t topic);

    const std::string& title(const Row& row) const;
    /// The parts of the line's title that the filter found.
    std::vector<Span> spans(const Row& row) const;

  private:
    struct FoldedTopic {
        std::string title;
        std::vector<std::string> entries;
    };

    std::optional<ListedTopic> filtered(std::size_t topic) const;
    const std::string& folded(const Row& row) const;

    const formats::BrowseSection* section_ = nullptr;
    std::vector<FoldedTopic> folded_;
    TitleFilter filter_;
    std::vector<ListedTopic> listed_;
    std::vector<bool> opened_;
    std::vector<bool> openedWhileNarrowed_;
};

}  // namespace controls::select
