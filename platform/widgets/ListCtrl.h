#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "platform/widgets/Control.h"

namespace platform {

/// A list of rows under column headers, of which one row can be selected. Rows and columns count from 0.
class CListCtrl : public CControl {
  public:
    /// Appends a column; `width` in pixels.
    void InsertColumn(std::string_view text, int width);
    int GetColumnWidth(int column) const;

    /// Adds a row with this text in column 0; its index, which with LVS_SORTASCENDING is its place in the
    /// alphabetical order of column 0.
    int InsertItem(std::string_view text);
    void DeleteAllItems();
    int GetItemCount() const;

    /// Texts and data of rows that do not exist are empty and 0, and are not set.
    void SetItemText(int row, int column, std::string_view text);
    std::string GetItemText(int row, int column) const;
    void SetItemData(int row, LPARAM data);
    LPARAM GetItemData(int row) const;

    /// The selected row, −1 for none.
    int GetSelectedItem() const;
    /// Selects a row, gives it the list's focus mark and scrolls it into view.
    void SelectItem(int row);

    /// Sorts the rows: negative when the row with the first data comes before that with the second. Rows that
    /// compare as equal stay in their order, and all can be asked for while they are compared.
    void SortItems(const std::function<int(LPARAM first, LPARAM second)>& compare);
};

}  // namespace platform
