#pragma once

#include <QCursor>

#include "platform/base/Messages.h"

namespace drive {

/// The mouse of the scripted desktop. What it does arrives as events of the window system, one at a time, so
/// that a press that opens a dialog does not keep the release behind.
class Pointer {
  public:
    static Pointer& instance();

    /// Moves to a point of the window's client area and stays there.
    void moveTo(platform::HWND window, platform::CPoint p);
    /// The same with a point of the screen.
    void moveTo(platform::CPoint screen);
    void press(Qt::MouseButton button);
    void release(Qt::MouseButton button);
    /// The second press of a double click.
    void pressAgain();
    /// By so many notches, away from the user where positive.
    void turnWheel(int notches);

    /// How the window under it shows it.
    QCursor cursor() const;

  private:
    Pointer() = default;
};

}  // namespace drive
