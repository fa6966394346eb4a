#include "controls/select/model/TopicList.h"

#include <algorithm>
#include <numeric>

#include "platform/text/Fold.h"

namespace controls::select {

namespace {

std::vector<std::size_t> allOf(std::size_t count) {
    std::vector<std::size_t> numbers(count);
    std::iota(numbers.begin(), numbers.end(), std::size_t{0});
    return numbers;
}

}  // namespace

void TopicList::setSection(const formats::BrowseSection* section) {
    section_ = section;
    folded_.clear();
    if (section) {
        folded_.reserve(section->topics.size());
        for (const formats::BrowseTopic& topic : section->topics) {
            FoldedTopic& folded = folded_.emplace_back(FoldedTopic{platform::fold(topic.title), {}});
            folded.entries.reserve(topic.entries.size());
            for (const auto& entry : topic.entries) folded.entries.push_back(platform::fold(entry.title));
        }
    }
    opened_.assign(folded_.size(), false);
    narrow({});
}

void TopicList::narrow(std::string_view text) {
    filter_ = TitleFilter(text);
    listed_.clear();
    openedWhileNarrowed_.assign(folded_.size(), false);
    for (std::size_t topic = 0; topic < folded_.size(); ++topic) {
        if (auto listed = filtered(topic)) listed_.push_back(std::move(*listed));
    }
    for (const ListedTopic& listed : listed_) {
        // A topic stays closed when its entries are listed without passing the filter themselves.
        openedWhileNarrowed_[listed.topic] =
            !listed.entries.empty() && filter_.passes(folded({listed.topic, listed.entries.front()}));
    }
}

std::optional<TopicList::ListedTopic> TopicList::filtered(std::size_t topic) const {
    const FoldedTopic& titles = folded_[topic];
    ListedTopic listed{topic, filter_.passes(titles.title), allOf(titles.entries.size())};
    if (!narrowed()) return listed;
    std::vector<std::size_t> passing;
    std::ranges::copy_if(listed.entries, std::back_inserter(passing),
                         [&](std::size_t entry) { return filter_.passes(titles.entries[entry]); });
    if (!passing.empty()) {
        listed.entries = std::move(passing);
    } else if (!listed.passes) {
        return std::nullopt;
    }
    return listed;
}

bool TopicList::contains(const Row& row) const {
    const auto listed = std::ranges::lower_bound(listed_, row.topic, {}, &ListedTopic::topic);
    if (listed == listed_.end() || listed->topic != row.topic) return false;
    return !row.entry || std::ranges::binary_search(listed->entries, *row.entry);
}

std::optional<Row> TopicList::firstMatch() const {
    if (!narrowed() || listed_.empty()) return std::nullopt;
    const ListedTopic& first = listed_.front();
    if (first.passes) return Row{first.topic, std::nullopt};
    return Row{first.topic, first.entries.front()};
}

bool TopicList::opened(std::size_t topic) const {
    return narrowed() ? openedWhileNarrowed_[topic] : opened_[topic];
}

void TopicList::setOpened(std::size_t topic, bool opened) {
    (narrowed() ? openedWhileNarrowed_ : opened_)[topic] = opened;
}

void TopicList::openLastingly(std::size_t topic) {
    opened_[topic] = true;
    openedWhileNarrowed_[topic] = true;
}

const std::string& TopicList::title(const Row& row) const {
    const formats::BrowseTopic& topic = section_->topics[row.topic];
    return row.entry ? topic.entries[*row.entry].title : topic.title;
}

std::vector<Span> TopicList::spans(const Row& row) const { return filter_.spans(folded(row)); }

const std::string& TopicList::folded(const Row& row) const {
    const FoldedTopic& topic = folded_[row.topic];
    return row.entry ? topic.entries[*row.entry] : topic.title;
}

}  // namespace controls::select
