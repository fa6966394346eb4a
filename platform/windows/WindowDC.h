#pragma once

#include "platform/drawing/DC.h"

namespace platform {

class CWnd;

/// Draws on a window's client area at any time; the window shows it at once.
class CClientDC : public CDC {
  public:
    explicit CClientDC(CWnd& window);
};

/// Draws on a window's client area in a handler of WM_PAINT, and marks the window as painted.
class CPaintDC : public CDC {
  public:
    explicit CPaintDC(CWnd& window);
};

}  // namespace platform
