#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace formats {

/// Where a link between pages leads.
struct PageLink {
    std::int16_t sectionCode;
    /// The topic that owns the page.
    std::int32_t pageId;
    /// The entry within the topic; 0 for the topic's own page.
    std::int32_t itemCode;

    bool operator==(const PageLink&) const = default;
};

/// The address of such a link, as pages write it: a file name of letters, digits and hyphens. No such file
/// exists; the program goes to the page through its list.
std::string encodePageLink(const PageLink& link);

/// The link that an address ends in, whatever folder stands before it. Nothing when it is another address or
/// a number does not fit.
std::optional<PageLink> decodePageLink(std::string_view address);

}  // namespace formats
