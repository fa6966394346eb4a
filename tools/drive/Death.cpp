#include "tools/drive/Death.h"

#include <unistd.h>

#include <csignal>
#include <string_view>

namespace drive {

namespace {

constexpr int kDied = 1;

extern "C" void die(int) {
    constexpr std::string_view told = "kalyxo-drive: the program died\n";
    // Nothing can be done about a line that cannot be written here.
    [[maybe_unused]] const ssize_t written = ::write(STDERR_FILENO, told.data(), told.size());
    ::_exit(kDied);
}

}  // namespace

void reportDeath() {
    for (const int signal : {SIGSEGV, SIGBUS, SIGFPE, SIGILL, SIGABRT}) {
        struct sigaction present {};
        ::sigaction(signal, nullptr, &present);
        // A sanitizer has handlers of its own.
        if (present.sa_handler == SIG_DFL) std::signal(signal, die);
    }
}

}  // namespace drive
