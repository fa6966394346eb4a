#include "formats/PageLink.h"

#include <charconv>

namespace formats {
namespace {

constexpr std::string_view prefix = "kzpage";
constexpr std::string_view extension = ".htm";

/// Takes `-number` off the front.
template <typename Number>
bool takeNumber(std::string_view& text, Number& number) {
    if (!text.starts_with('-')) return false;
    const auto [end, fault] = std::from_chars(text.data() + 1, text.data() + text.size(), number);
    if (fault != std::errc{} || number < 0) return false;
    text.remove_prefix(static_cast<std::size_t>(end - text.data()));
    return true;
}

}  // namespace

std::string encodePageLink(const PageLink& link) {
    std::string address(prefix);
    for (const std::int32_t number : {std::int32_t{link.sectionCode}, link.pageId, link.itemCode})
        address.append("-").append(std::to_string(number));
    return address.append(extension);
}

std::optional<PageLink> decodePageLink(std::string_view address) {
    const std::size_t name = address.find_last_of("\\/:") + 1;
    std::string_view rest = address.substr(name);
    if (!rest.starts_with(prefix)) return std::nullopt;
    rest.remove_prefix(prefix.size());
    PageLink link{};
    const bool hasNumbers = takeNumber(rest, link.sectionCode) && takeNumber(rest, link.pageId) &&
                            takeNumber(rest, link.itemCode);
    if (!hasNumbers || rest != extension) return std::nullopt;
    return link;
}

}  // namespace formats
