#pragma once

#include <memory>

#include "platform/base/Geometry.h"

class QWidget;

namespace platform {

/// A filled rectangle in front of all windows, anywhere on the screen. It takes neither input nor the focus,
/// and disappears with the object.
class ScreenRectangle {
  public:
    explicit ScreenRectangle(COLORREF colour);
    ~ScreenRectangle();
    ScreenRectangle(const ScreenRectangle&) = delete;
    ScreenRectangle& operator=(const ScreenRectangle&) = delete;

    /// Shows the rectangle at a place in screen coordinates, or moves it there.
    void Show(const CRect& rect);

  private:
    std::unique_ptr<QWidget> widget_;
};

}  // namespace platform
