#include "platform/framework/TerminationSignals.h"

#include <sys/eventfd.h>
#include <unistd.h>

#include <csignal>
#include <cstdint>

namespace platform {

namespace {

constexpr int terminationSignals[] = {SIGTERM, SIGHUP, SIGINT};

/// A file descriptor. The handler of a signal can reach only global variables.
volatile std::sig_atomic_t counter = -1;

void countSignal(int) {
    constexpr std::uint64_t one = 1;
    // Fails only if the counter is full.
    [[maybe_unused]] const auto written = write(counter, &one, sizeof one);
}

int makeCounter() {
    counter = eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK);
    return counter;
}

/// Each handler is called once. A signal that is ignored, as under `nohup`, stays ignored.
void installHandlers() {
    struct sigaction handling = {};
    handling.sa_handler = countSignal;
    handling.sa_flags = SA_RESTART | static_cast<int>(SA_RESETHAND);
    for (const int number : terminationSignals) {
        struct sigaction before = {};
        sigaction(number, nullptr, &before);
        if (before.sa_handler == SIG_DFL) sigaction(number, &handling, nullptr);
    }
}

void removeHandlers() {
    for (const int number : terminationSignals) {
        struct sigaction present = {};
        sigaction(number, nullptr, &present);
        if (present.sa_handler == countSignal) std::signal(number, SIG_DFL);
    }
}

}  // namespace

TerminationSignals::TerminationSignals(std::function<void()> end)
    : notifier_(makeCounter(), QSocketNotifier::Read) {
    QObject::connect(&notifier_, &QSocketNotifier::activated, &notifier_, [this, end = std::move(end)] {
        notifier_.setEnabled(false);
        end();
    });
    installHandlers();
}

TerminationSignals::~TerminationSignals() {
    removeHandlers();
    notifier_.setEnabled(false);
    close(counter);
}

}  // namespace platform
