#pragma once

#include <algorithm>
#include <cstddef>
#include <memory>
#include <optional>
#include <span>
#include <vector>

#include "src/bookmarks/BookmarkRecords.h"

namespace kalyxo {

/// Records in the order of display: a folder, then the bookmarks in it, up to the next folder.
using BookmarkArray = std::vector<std::unique_ptr<CBookmark>>;

/// One empty folder with the default name.
BookmarkArray DefaultBookmarks();

/// The user's bookmarks. Once loaded, the first record is a folder.
class BookmarkList {
  public:
    const BookmarkArray& Records() const { return m_arrBookmarks; }
    /// The folder that takes the next bookmark; null when there is none.
    const CBookmark* CurrentFolder() const { return m_pCurrentFolder; }
    /// The place of the current folder among the records.
    std::optional<std::size_t> CurrentFolderIndex() const;
    /// `folder` is a folder of the list, or null.
    void SetCurrentFolder(const CBookmark* folder) { m_pCurrentFolder = folder; }

    void ResetBookmarks() { Replace(DefaultBookmarks()); }
    /// Takes other records, the first of them a folder, which becomes the current one.
    void Replace(BookmarkArray records);
    /// Makes `order` the records of the list. Each is a record of the list or of `added`, and stands there
    /// once. All other records of both are freed; if the current folder is one of them, there is none.
    void Rearrange(std::span<const CBookmark* const> order, BookmarkArray added);

    /// Adds a bookmark at the end of the current folder, of the first when there is no current one.
    void Add(std::unique_ptr<CBookmark> bookmark);

    /// How many bookmarks of one kind there are, in all folders.
    template <class Record>
    std::size_t CountOf() const {
        return static_cast<std::size_t>(std::ranges::count_if(
            m_arrBookmarks, [](const auto& record) { return record->IsKindOf(Record::runtimeClass); }));
    }

  private:
    BookmarkArray m_arrBookmarks;
    const CBookmark* m_pCurrentFolder = nullptr;
};

}  // namespace kalyxo
