#pragma once

#include <deque>
#include <optional>
#include <span>
#include <vector>

#include "platform/machine/BoxAnswer.h"

namespace platform {

/// Answers that stand ready for the next message boxes, so that a script can run without anyone at the
/// screen. Off at first: boxes are then shown.
class AnswerQueue {
  public:
    void enable() { enabled_ = true; }
    bool enabled() const { return enabled_; }

    /// Adds answers behind those that wait.
    void add(const std::vector<BoxAnswer>& answers);

    /// The answer for a box with these buttons: the next that waits, when the box has it; otherwise `ok` or
    /// `yes`, whichever it has, else its first button. Nothing while off, or for a box without buttons.
    std::optional<BoxAnswer> next(std::span<const BoxAnswer> buttons);

  private:
    std::deque<BoxAnswer> waiting_;
    bool enabled_ = false;
};

}  // namespace platform
