#include "src/bookmarks/BookmarkList.h"

#include <iterator>
#include <unordered_map>
#include <utility>

#include "platform/base/Resources.h"
#include "src/resources/ResourceIds.h"

namespace kalyxo {

BookmarkArray DefaultBookmarks() {
    BookmarkArray records;
    records.push_back(std::make_unique<CBMFolder>());
    records.front()->name = platform::LoadString(IDS_FOLDER_DEFAULT_NAME);
    return records;
}

std::optional<std::size_t> BookmarkList::CurrentFolderIndex() const {
    const auto found = std::ranges::find_if(
        m_arrBookmarks, [this](const auto& record) { return record.get() == m_pCurrentFolder; });
    if (found == m_arrBookmarks.end()) return std::nullopt;
    return static_cast<std::size_t>(found - m_arrBookmarks.begin());
}

void BookmarkList::Replace(BookmarkArray records) {
    m_arrBookmarks = std::move(records);
    m_pCurrentFolder = m_arrBookmarks.front().get();
}

void BookmarkList::Rearrange(std::span<const CBookmark* const> order, BookmarkArray added) {
    std::ranges::move(m_arrBookmarks, std::back_inserter(added));
    std::unordered_map<const CBookmark*, std::unique_ptr<CBookmark>> pool;
    for (auto& record : added) pool.emplace(record.get(), std::move(record));
    m_arrBookmarks.clear();
    for (const CBookmark* const record : order) m_arrBookmarks.push_back(std::move(pool.at(record)));
    if (!CurrentFolderIndex()) m_pCurrentFolder = nullptr;
}

void BookmarkList::Add(std::unique_ptr<CBookmark> bookmark) {
    const auto folder = static_cast<std::ptrdiff_t>(CurrentFolderIndex().value_or(0));
    const auto next = std::find_if(m_arrBookmarks.begin() + folder + 1, m_arrBookmarks.end(),
                                   [](const auto& record) { return IsFolder(*record); });
    m_arrBookmarks.insert(next, std::move(bookmark));
}

}  // namespace kalyxo
