#pragma once

#include <string>
#include <string_view>

#include "platform/widgets/Control.h"

namespace platform {

/// The place of a new item among its siblings.
enum class TreePlace { last, sorted };

/// Parts of a tree view in which a point can be, with their published values.
inline constexpr UINT TVHT_NOWHERE = 0x0001;
inline constexpr UINT TVHT_ONITEM = 0x0046;
inline constexpr UINT TVHT_ABOVE = 0x0100;
inline constexpr UINT TVHT_BELOW = 0x0200;
inline constexpr UINT TVHT_TORIGHT = 0x0400;
inline constexpr UINT TVHT_TOLEFT = 0x0800;

/// A tree of texts, one of which can be selected. A null item stands for no item; functions that are given
/// one return nothing.
class CTreeCtrl : public CControl {
  public:
    /// Inserts an item below `parent`, or at the top level for null.
    HTREEITEM InsertItem(std::string_view text, HTREEITEM parent = nullptr,
                         TreePlace place = TreePlace::last);
    /// Deletes the item and all below it.
    void DeleteItem(HTREEITEM item);
    void DeleteAllItems();

    std::string GetItemText(HTREEITEM item) const;
    void SetItemText(HTREEITEM item, std::string_view text);
    LPARAM GetItemData(HTREEITEM item) const;
    void SetItemData(HTREEITEM item, LPARAM data);

    HTREEITEM GetRootItem() const;
    HTREEITEM GetChildItem(HTREEITEM item) const;
    HTREEITEM GetParentItem(HTREEITEM item) const;
    HTREEITEM GetNextSiblingItem(HTREEITEM item) const;
    HTREEITEM GetPrevSiblingItem(HTREEITEM item) const;
    /// The next item above or below that is not hidden in a closed item.
    HTREEITEM GetNextVisibleItem(HTREEITEM item) const;
    HTREEITEM GetPrevVisibleItem(HTREEITEM item) const;

    HTREEITEM GetSelectedItem() const;
    /// Selects an item and scrolls it into view.
    void SelectItem(HTREEITEM item);
    void Expand(HTREEITEM item);
    void EnsureVisible(HTREEITEM item);
    /// Sorts the direct children of `item` alphabetically.
    void SortChildren(HTREEITEM item);

    /// The item in whose row a point of the client area is, null when there is none. `flags` receives where
    /// the point is (TVHT_…).
    HTREEITEM HitTest(CPoint point, UINT& flags) const;
};

}  // namespace platform
