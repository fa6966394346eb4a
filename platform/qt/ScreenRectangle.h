#pragma once

#include <memory>

#include "platform/base/Geometry.h"

class QWidget;

namespace platform {

/// A filled rectangle over all windows, anywhere on the screen. It takes no input and no focus, and is gone
/// with the object.
class ScreenRectangle {
  public:
    explicit ScreenRectangle(COLORREF colour);
    ~ScreenRectangle();
    ScreenRectangle(const ScreenRectangle&) = delete;
    ScreenRectangle& operator=(const ScreenRectangle&) = delete;

    /// Shows it here, in screen coordinates, and nowhere else.
    void Show(const CRect& rect);

  private:
    std::unique_ptr<QWidget> widget_;
};

}  // namespace platform
