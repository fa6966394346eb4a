#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>

namespace controls::select {

/// What the host calls the place on show.
struct Place {
    /// The topic that owns the page; 0 when none.
    std::int32_t pageId = 0;
    /// The entry of that topic, or 0 for the topic's own page.
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
