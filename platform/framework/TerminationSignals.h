#pragma once

#include <QSocketNotifier>
#include <functional>

namespace platform {

/// Calls a function when the system asks the program to end: at the end of the session, or when the terminal
/// that started it is closed (SIGTERM, SIGHUP, SIGINT). A second signal ends the program at once. Only one
/// object may exist at a time.
class TerminationSignals {
  public:
    /// `end` is called from the event loop, once.
    explicit TerminationSignals(std::function<void()> end);
    ~TerminationSignals();
    TerminationSignals(const TerminationSignals&) = delete;
    TerminationSignals& operator=(const TerminationSignals&) = delete;

  private:
    QSocketNotifier notifier_;
};

}  // namespace platform
