#pragma once

#include "platform/windows/Control.h"

namespace platform {

/// A push button or a check box. A click is the command of its id.
class CButton : public CControl {
  public:
    bool GetCheck() const;
    void SetCheck(bool checked);
};

}  // namespace platform
