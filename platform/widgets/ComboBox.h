#pragma once

#include <string>
#include <string_view>

#include "platform/widgets/Control.h"

namespace platform {

/// A drop-down list. Entries count from 0.
class CComboBox : public CControl {
  public:
    /// Appends an entry and returns its index.
    int AddString(std::string_view text);
    /// The selected entry, −1 when there is none.
    int GetCurSel() const;
    /// Selects an entry without telling.
    void SetCurSel(int index);
    /// Empty for an index that is none.
    std::string GetLBText(int index) const;
};

}  // namespace platform
