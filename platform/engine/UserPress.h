#pragma once

#include <QDeadlineTimer>

class QEvent;

namespace platform {

/// Counts how often the user has pressed a key or the mouse in a page, for the few seconds in which it may
/// answer.
class UserPress {
  public:
    /// Looks at an event of the widget that takes the page's input.
    void see(const QEvent& event);

    /// Whether there was a press lately that has not been taken yet; takes it.
    bool take();

    /// Whether the last press was one of a key.
    bool lastWasKey() const { return lastWasKey_; }

    /// Forgets the presses in a page that the program leaves.
    void forget() { presses_ = 0; }

  private:
    int presses_ = 0;  // that have not been taken
    bool lastWasKey_ = false;
    QDeadlineTimer limit_{0};
};

}  // namespace platform
