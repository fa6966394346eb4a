#pragma once

#include "platform/base/Messages.h"

namespace platform {

/// A cursor of the system, or a cursor resource.
class CCursor {
  public:
    static CCursor Arrow();
    /// Shows that nothing can be done here.
    static CCursor NoEntry();
    static CCursor FromResource(UINT id);
    /// Shows the cursor over a window: the one that is handling WM_SETCURSOR, else the one that has captured
    /// the mouse, else the one under the pointer.
    void Set() const;

  private:
    UINT id_ = 0;  // 0 = the arrow
};

/// Shows the wait cursor over all windows during its lifetime.
class CWaitCursor {
  public:
    CWaitCursor();
    ~CWaitCursor();
    CWaitCursor(const CWaitCursor&) = delete;
    CWaitCursor& operator=(const CWaitCursor&) = delete;
};

/// Sends WM_SETCURSOR to a window. If the window sets no cursor it gets the arrow, unless it is a standard
/// control, which has its own cursor.
void askForCursor(HWND window);

}  // namespace platform
