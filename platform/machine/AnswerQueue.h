#pragma once

#include <deque>
#include <optional>
#include <span>
#include <vector>

#include "platform/machine/BoxAnswer.h"

namespace platform {

/// Prepared answers for message boxes, so that a script can run without anyone at the screen. Off at first;
/// boxes are then shown to the user.
class AnswerQueue {
  public:
    void enable() { enabled_ = true; }
    bool enabled() const { return enabled_; }

    /// Adds answers after those that already wait.
    void add(const std::vector<BoxAnswer>& answers);

    /// The answer for a box with these buttons: the first waiting answer if the box has that button;
    /// otherwise `ok` or `yes`, whichever the box has, else its first button. Nothing while the queue is off,
    /// or for a box without buttons.
    std::optional<BoxAnswer> next(std::span<const BoxAnswer> buttons);

  private:
    std::deque<BoxAnswer> waiting_;
    bool enabled_ = false;
};

}  // namespace platform
