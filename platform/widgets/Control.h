#pragma once

#include "platform/base/ControlMessages.h"
#include "platform/windows/Wnd.h"

namespace platform {

/// A standard control of a dialog or another window. The message map of its class gets its messages first;
/// the control itself handles those that the map does not have.
class CControl : public CWnd {
  public:
    /// Whether the object has a control: it was bound to one by DDX_Control, or has created one.
    bool Bound() const { return GetSafeHwnd() != 0; }

  protected:
    /// Has the control handle the current message as if there were no handler in the map.
    void Default();
    LRESULT DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;
};

}  // namespace platform
