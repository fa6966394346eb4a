#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>

namespace controls::select {

/// A place in the content, as the host names it.
struct Place {
    /// The page id of the topic, 0 for none.
    std::int32_t pageId = 0;
    /// The entry of that topic, 0 for the topic's own page.
    std::int32_t itemCode = 0;

    bool operator==(const Place&) const = default;
};

/// A line of the list: a topic, or one of its entries, by their positions in the section.
struct Row {
    std::size_t topic = 0;
    std::optional<std::size_t> entry;

    bool operator==(const Row&) const = default;
};

}  // namespace controls::select
