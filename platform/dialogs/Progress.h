#pragma once

#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "platform/files/ProgressStep.h"
#include "platform/windows/Cursor.h"

namespace platform {

/// Shows the progress of an operation that may take long: after half a second the wait cursor, after two
/// seconds a box that shows how far the operation is and in which the user can cancel it. No other window
/// takes input meanwhile, so the user cannot disturb the operation.
///
/// If message boxes take prepared answers, the box is not shown but answered: by `ok`, which lets the
/// operation go on, or by `cancel`.
class CProgress {
  public:
    /// `what` names the operation for the user, in code page 1253.
    explicit CProgress(std::string_view what);
    ~CProgress();
    CProgress(const CProgress&) = delete;
    CProgress& operator=(const CProgress&) = delete;

    /// The operation calls this as often as it likes, during the lifetime of this object.
    ProgressStep Step() {
        return [this](std::uint64_t done, std::uint64_t total) { return goOn(done, total); };
    }
    bool Cancelled() const { return cancelled_; }

  private:
    class Box;

    bool goOn(std::uint64_t done, std::uint64_t total);
    void ask();

    std::string what_;
    std::uint64_t begin_;
    std::optional<CWaitCursor> cursor_;
    std::unique_ptr<Box> box_;
    bool asked_ = false;
    bool cancelled_ = false;
};

}  // namespace platform
