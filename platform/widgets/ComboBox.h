#pragma once

#include <string>
#include <string_view>

#include "platform/widgets/Control.h"

namespace platform {

/// A drop-down list. Entries are counted from 0.
class CComboBox : public CControl {
  public:
    /// Appends an entry and returns its index.
    int AddString(std::string_view text);
    /// The selected entry, −1 when there is none.
    int GetCurSel() const;
    /// Selects an entry, without a notification.
    void SetCurSel(int index);
    /// The text of an entry; empty for an invalid index.
    std::string GetLBText(int index) const;
};

}  // namespace platform
