#pragma once

#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "platform/files/ProgressStep.h"
#include "platform/windows/Wnd.h"

namespace platform {

/// Stands around an operation that may be long. After half a second it shows the wait cursor; after two a box
/// that tells how far the operation is and takes no input but to cancel it. What the operation does in
/// between steps is neither seen nor disturbed by the user: nothing else takes input meanwhile.
///
/// Where message boxes are answered from the machine's queue, the box is: by `ok`, which lets the operation
/// go on, or `cancel`.
class CProgress {
  public:
    /// `what` is the operation's name in code page 1253, for the user.
    explicit CProgress(std::string_view what);
    ~CProgress();
    CProgress(const CProgress&) = delete;
    CProgress& operator=(const CProgress&) = delete;

    /// For the operation to call, as often as it likes, while this lives.
    ProgressStep Step() {
        return [this](std::uint64_t done, std::uint64_t total) { return goOn(done, total); };
    }
    bool Cancelled() const { return m_bCancelled; }

  private:
    class Box;

    bool goOn(std::uint64_t done, std::uint64_t total);
    void ask();

    std::string m_what;
    std::uint64_t m_nBegin;
    std::optional<CWaitCursor> m_cursor;
    std::unique_ptr<Box> m_box;
    bool m_bAsked = false;
    bool m_bCancelled = false;
};

}  // namespace platform
