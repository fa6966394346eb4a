#pragma once

#include <QCursor>

#include "platform/base/Messages.h"

namespace drive {

/// The mouse of the scripted desktop. Each of its actions arrives as an event of its own. So the release
/// still arrives when a press has opened a dialog.
class Pointer {
  public:
    static Pointer& instance();

    /// The modifier keys that are held from now on.
    void hold(Qt::KeyboardModifiers modifiers);
    /// Moves to a point of the window's client area.
    void moveTo(platform::HWND window, platform::CPoint p);
    /// Moves to a point of the screen.
    void moveTo(platform::CPoint screen);
    void press(Qt::MouseButton button);
    void release(Qt::MouseButton button);
    /// The second press of a double click.
    void pressAgain();
    /// Turns the wheel by some notches; positive ones turn it away from the user.
    void turnWheel(int notches);

    /// The cursor of the window under the pointer.
    QCursor cursor() const;

  private:
    Pointer() = default;
};

}  // namespace drive
