#pragma once

#include <span>
#include <string_view>
#include <vector>

#include "platform/files/ProgressStep.h"
#include "platform/widgets/TreeCtrl.h"
#include "platform/windows/Cursor.h"
#include "src/bookmarks/BookmarkList.h"

namespace kalyxo {

/// The tree of the organiser: folders at the top, bookmarks below them. Each item shows the name of a record
/// that belongs to someone else. Bookmarks can be dragged to another folder.
class CBookmarkTree : public platform::CTreeCtrl {
  public:
    using Item = platform::HTREEITEM;

    CBookmarkTree();
    const platform::MessageMap* GetMessageMap() const override;

    /// Shows the records of a list, the folders in alphabetical order, and selects and opens the current
    /// folder, or the first when there is none. False when `step` has cancelled that.
    bool Fill(const BookmarkList& list, const platform::ProgressStep& step = {});
    /// Adds a folder in its alphabetical place.
    Item AddFolder(const CBookmark& folder);
    /// Gives an item another record.
    void SetRecord(Item item, const CBookmark& record);

    /// The record of an item, null for none.
    const CBookmark* RecordOf(Item item) const;
    /// The folder that an item is or lies in; null for none.
    Item FolderOf(Item item) const;
    bool IsFolderItem(Item item) const { return item && !GetParentItem(item); }
    /// The folder's item, null when it is not in the tree.
    Item FindFolder(const CBookmark* folder) const;
    /// Whether `first` or an item after it, on its level, has exactly this name; `except` is not looked at.
    bool HasName(Item first, std::string_view name, Item except = nullptr) const;
    /// All records in the order of display.
    std::vector<const CBookmark*> Records() const;

    /// Starts to drag a bookmark; a folder is only selected.
    void BeginDrag(Item item);
    /// Leaves a bookmark that is being dragged where it is.
    void CancelDrag();

  private:
    void OnMouseMove(platform::UINT flags, platform::CPoint point);
    void OnLButtonUp(platform::UINT flags, platform::CPoint point);
    bool OnSetCursor();

    Item addItem(const CBookmark& record, Item folder, platform::TreePlace place);
    void aimAt(Item item);
    void showCursor(const platform::CCursor& cursor);
    void drop(Item dragged, Item folder);

    bool m_bDragging = false;
    Item m_dragged = nullptr;
    Item m_dropTarget = nullptr;
    platform::CCursor m_dragCursor;
    platform::CCursor m_shownCursor;
};

}  // namespace kalyxo
