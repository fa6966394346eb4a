#pragma once

#include <string>
#include <string_view>

#include "platform/widgets/Control.h"

namespace platform {

/// A list of texts, one of which can be selected. Indices are counted from 0. With LBS_SORT the entries are
/// in alphabetical order, so an index is valid only until more entries are added.
class CListBox : public CControl {
  public:
    void AddString(std::string_view text);
    void ResetContent();
    /// The text of an entry; empty for an invalid index.
    std::string GetText(int index) const;
    /// The selected entry, −1 when there is none.
    int GetCurSel() const;
    /// Selects an entry and scrolls it into view, without a notification; −1 clears the selection.
    void SetCurSel(int index);
    /// The first entry that begins with `prefix`, in upper or lower case. The search starts after entry
    /// `after` and wraps around. −1 when there is none.
    int FindString(int after, std::string_view prefix) const;
};

}  // namespace platform
