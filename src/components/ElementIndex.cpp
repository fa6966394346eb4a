#include "src/components/ElementIndex.h"

#include <algorithm>
#include <string>

#include "platform/files/FileSystem.h"

namespace kalyxo {

namespace {

/// Room for far more records than keys exist.
constexpr std::size_t kMaxIndexBytes = 1 << 20;

}  // namespace

bool ElementIndex::Load(const platform::FileSystem& files, std::string_view dataFolder) {
    const std::optional<std::string> image =
        files.readAll(std::string(dataFolder).append(formats::elementIndexFile), kMaxIndexBytes);
    if (!image) return false;
    m_records = formats::decodeElementIndex(*image);
    return true;
}

std::optional<std::int32_t> ElementIndex::PageOf(std::int16_t elementKey) const {
    const auto at = std::ranges::find_if(m_records, [&](const formats::ElementPageRecord& record) {
        return std::int16_t{record.elementKey} == elementKey;
    });
    if (at == m_records.end()) return std::nullopt;
    return at->pageId;
}

}  // namespace kalyxo
