#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "platform/widgets/Control.h"

namespace platform {

/// A list of rows under column headers; one row can be selected. Rows and columns are counted from 0.
class CListCtrl : public CControl {
  public:
    /// Appends a column; `width` in pixels.
    void InsertColumn(std::string_view text, int width);
    int GetColumnWidth(int column) const;

    /// Adds a row with this text in column 0 and returns its index. With LVS_SORTASCENDING the row is put at
    /// its place in the alphabetical order of column 0.
    int InsertItem(std::string_view text);
    void DeleteAllItems();
    int GetItemCount() const;

    /// For rows that do not exist, texts are empty, data are 0, and setting them does nothing.
    void SetItemText(int row, int column, std::string_view text);
    std::string GetItemText(int row, int column) const;
    void SetItemData(int row, LPARAM data);
    LPARAM GetItemData(int row) const;

    /// The selected row, −1 for none.
    int GetSelectedItem() const;
    /// Selects a row and scrolls it into view.
    void SelectItem(int row);

    /// Sorts the rows. `compare` is negative when the row with the first data comes before the row with the
    /// second. Equal rows stay in their order. The rows can be read while they are compared.
    void SortItems(const std::function<int(LPARAM first, LPARAM second)>& compare);
};

}  // namespace platform
