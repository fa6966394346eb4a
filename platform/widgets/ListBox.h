#pragma once

#include <string>
#include <string_view>

#include "platform/widgets/Control.h"

namespace platform {

/// A list of texts of which one can be selected. Indices count from 0; with LBS_SORT they follow the
/// alphabetical order, so an index holds only until more is added.
class CListBox : public CControl {
  public:
    void AddString(std::string_view text);
    void ResetContent();
    /// Empty for an index that is none.
    std::string GetText(int index) const;
    /// The selected entry, −1 when there is none.
    int GetCurSel() const;
    /// Selects an entry and scrolls it into view without telling; −1 clears the selection.
    void SetCurSel(int index);
    /// The first entry that begins with `prefix`, in any letter case, looked for from the one after `after`
    /// to the last and then from the first to `after` itself; −1 when there is none.
    int FindString(int after, std::string_view prefix) const;
};

}  // namespace platform
