#pragma once

#include <QSocketNotifier>
#include <functional>

namespace platform {

/// Lets the program end in its own way when the system asks it to: at the end of the session, or when the
/// terminal that it was started from goes (SIGTERM, SIGHUP, SIGINT). A second request ends it at once. Only
/// one may exist at a time.
class EndRequests {
  public:
    /// `end` is called from the event loop.
    explicit EndRequests(std::function<void()> end);
    ~EndRequests();
    EndRequests(const EndRequests&) = delete;
    EndRequests& operator=(const EndRequests&) = delete;

  private:
    QSocketNotifier notifier_;
};

}  // namespace platform
