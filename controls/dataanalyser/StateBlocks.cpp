#include "controls/dataanalyser/StateBlocks.h"

#include <algorithm>

#include "controls/common/Element.h"
#include "controls/dataanalyser/Column.h"

namespace controls::dataanalyser {

namespace {

void append(std::vector<std::byte>& bytes, std::uint32_t word) {
    for (int shift = 0; shift < 32; shift += 8) bytes.push_back(static_cast<std::byte>(word >> shift & 0xFF));
}

/// The count of words, itself included, then the code of each column.
std::vector<std::byte> columnsBlock() {
    std::vector<std::byte> bytes;
    append(bytes, columnCount + 1);
    for (std::uint32_t code = 0; code < columnCount; ++code) append(bytes, code);
    return bytes;
}

}  // namespace

Location StateBlocks::keepColumns() {
    entryCount_ = columnsBlock();
    return entryCountLocation;
}

Location StateBlocks::keepSelection(std::span<const int> numbers) {
    selection_.clear();
    for (const int number : numbers) selection_.push_back(static_cast<std::byte>(number));
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
    if (location == entryCountLocation) return entryCount_;
    if (location == selectionLocation) return selection_;
    return {};
}

bool StateBlocks::tellsOurColumns(Location location) const {
    return std::ranges::equal(at(location), columnsBlock());
}

std::vector<int> StateBlocks::selection(Location location, std::int32_t count) const {
    std::vector<int> numbers;
    const auto bytes = at(location);
    const auto wanted = std::min(static_cast<std::size_t>(std::max(count, 0)), bytes.size());
    for (const std::byte byte : bytes.first(wanted)) {
        const int number = std::to_integer<int>(byte);
        if (findElement(number)) numbers.push_back(number);
    }
    return numbers;
}

}  // namespace controls::dataanalyser
