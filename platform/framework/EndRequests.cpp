#include "platform/framework/EndRequests.h"

#include <sys/eventfd.h>
#include <unistd.h>

#include <csignal>
#include <cstdint>

namespace platform {

namespace {

constexpr int requests[] = {SIGTERM, SIGHUP, SIGINT};

/// Handlers of signals can reach nothing else.
volatile std::sig_atomic_t counter = -1;

void countRequest(int) {
    constexpr std::uint64_t one = 1;
    // It only fails where more have come than can be counted.
    [[maybe_unused]] const auto written = write(counter, &one, sizeof one);
}

int makeCounter() {
    counter = eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK);
    return counter;
}

/// Once each; what the user ignores, as `nohup` does, stays ignored.
void handleRequests() {
    struct sigaction handling = {};
    handling.sa_handler = countRequest;
    handling.sa_flags = SA_RESTART | static_cast<int>(SA_RESETHAND);
    for (const int request : requests) {
        struct sigaction before = {};
        sigaction(request, nullptr, &before);
        if (before.sa_handler == SIG_DFL) sigaction(request, &handling, nullptr);
    }
}

void leaveRequests() {
    for (const int request : requests) {
        struct sigaction present = {};
        sigaction(request, nullptr, &present);
        if (present.sa_handler == countRequest) std::signal(request, SIG_DFL);
    }
}

}  // namespace

EndRequests::EndRequests(std::function<void()> end) : notifier_(makeCounter(), QSocketNotifier::Read) {
    QObject::connect(&notifier_, &QSocketNotifier::activated, &notifier_, [this, end = std::move(end)] {
        notifier_.setEnabled(false);
        end();
    });
    handleRequests();
}

EndRequests::~EndRequests() {
    leaveRequests();
    notifier_.setEnabled(false);
    close(counter);
}

}  // namespace platform
