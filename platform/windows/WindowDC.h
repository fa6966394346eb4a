#pragma once

#include "platform/drawing/DC.h"

namespace platform {

class CWnd;

/// Draws on a window's client area outside a paint message; the window shows it at once.
class CClientDC : public CDC {
  public:
    explicit CClientDC(CWnd& window);
};

/// Draws on a window's client area in answer to a paint message and marks it as painted.
class CPaintDC : public CDC {
  public:
    explicit CPaintDC(CWnd& window);
};

}  // namespace platform
