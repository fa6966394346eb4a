#pragma once

#include "platform/base/ControlMessages.h"
#include "platform/windows/Wnd.h"

namespace platform {

/// A standard control of a dialog or another window. Its class's map sees its messages first; those without a
/// row are the control's own.
class CControl : public CWnd {
  public:
    /// Whether it stands behind a control: bound to one of a dialog's by DDX_Control, or created.
    bool bound() const { return GetSafeHwnd() != 0; }

  protected:
    /// Has the control treat the message that is being handled as if there were no handler.
    void Default();
    LRESULT DefWindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;
};

}  // namespace platform
