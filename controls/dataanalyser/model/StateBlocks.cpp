#include "controls/dataanalyser/model/StateBlocks.h"

#include <algorithm>
#include <type_traits>

namespace controls::dataanalyser {

namespace {

template <class T>
void append(std::vector<std::byte>& bytes, T value) {
    const auto bits = static_cast<std::make_unsigned_t<T>>(value);
    for (std::size_t i = 0; i < sizeof(T); ++i)
        bytes.push_back(static_cast<std::byte>(bits >> (8 * i) & 0xFF));
}

/// The little-endian numbers in some bytes. An incomplete last one is left out.
template <class T>
std::vector<T> numbers(std::span<const std::byte> bytes) {
    std::vector<T> values(bytes.size() / sizeof(T));
    for (std::size_t at = 0; at < values.size() * sizeof(T); ++at) {
        T& value = values[at / sizeof(T)];
        value = static_cast<T>(
            value | static_cast<T>(std::to_integer<std::uint32_t>(bytes[at]) << (8 * (at % sizeof(T)))));
    }
    return values;
}

}  // namespace

Location StateBlocks::keepEntries(std::span<const std::int32_t> words) {
    entries_.clear();
    append(entries_, static_cast<std::int32_t>(words.size() + 1));
    for (const std::int32_t word : words) append(entries_, word);
    return entriesLocation;
}

Location StateBlocks::keepSelection(std::span<const std::int16_t> ids) {
    selection_.clear();
    for (const std::int16_t id : ids) append(selection_, id);
    return selectionLocation;
}

Location StateBlocks::keepHosts(std::span<const std::byte> bytes) {
    const std::size_t slot = nextHost_;
    hosts_[slot].assign(bytes.begin(), bytes.end());
    nextHost_ = (slot + 1) % hosts_.size();
    return firstHostLocation + static_cast<Location>(slot);
}

std::span<const std::byte> StateBlocks::at(Location location) const {
    for (std::size_t slot = 0; slot < hosts_.size(); ++slot) {
        if (location == firstHostLocation + static_cast<Location>(slot)) return hosts_[slot];
    }
    if (location == entriesLocation) return entries_;
    if (location == selectionLocation) return selection_;
    return {};
}

std::vector<std::int32_t> StateBlocks::entries(Location location) const {
    auto words = numbers<std::int32_t>(at(location));
    if (words.empty() || words.front() != static_cast<std::int64_t>(words.size())) return {};
    words.erase(words.begin());
    return words;
}

std::vector<std::int16_t> StateBlocks::selection(Location location, std::int32_t size) const {
    const auto bytes = at(location);
    return numbers<std::int16_t>(
        bytes.first(std::min(static_cast<std::size_t>(std::max(size, 0)), bytes.size())));
}

}  // namespace controls::dataanalyser
