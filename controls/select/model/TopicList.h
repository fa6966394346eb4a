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

/// The topics of one section as the reader sees them: all, or those that pass the filter, each opened or
/// closed.
class TopicList {
  public:
    /// A topic that is listed, with its listed entries; both count from 0 in the section.
    struct ListedTopic {
        std::size_t topic = 0;
        /// Whether its own title passes the filter.
        bool passes = true;
        std::vector<std::size_t> entries;
    };

    /// Lists a section, which must outlive its use here, with all topics closed and nothing left out; null
    /// lists nothing.
    void setSection(const formats::BrowseSection* section);

    /// Leaves only what the text finds. A topic stays when its title passes (with all entries, closed, unless
    /// some of them pass too) or when an entry passes (opened, with these entries). A blank text lists
    /// everything again, with the topics opened as they were.
    void narrow(std::string_view text);
    bool narrowed() const { return filter_.active(); }

    std::span<const ListedTopic> topics() const { return listed_; }
    bool contains(const Row& row) const;

    /// The first line whose own title passes; nothing when the list is not narrowed or is empty.
    std::optional<Row> firstMatch() const;

    /// Topics are opened and closed by their position in the section; a narrowed list forgets that when it
    /// changes.
    bool opened(std::size_t topic) const;
    void setOpened(std::size_t topic, bool opened);
    /// Opens a topic in the narrowed list and in the whole one.
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
