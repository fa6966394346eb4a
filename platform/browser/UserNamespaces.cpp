#include "platform/browser/UserNamespaces.h"

#include <fcntl.h>
#include <sched.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <string>

namespace platform {

namespace {

/// What maps one number to itself.
std::string mapOf(unsigned int number) {
    const std::string text = std::to_string(number);
    return text + ' ' + text + " 1";
}

/// In a child, whose end closes the file.
bool writeWhole(const char* file, const std::string& text) {
    const int opened = ::open(file, O_WRONLY | O_CLOEXEC);
    return opened >= 0 && ::write(opened, text.data(), text.size()) == static_cast<ssize_t>(text.size());
}

bool waitForSuccess(pid_t child) {
    int status = 0;
    while (::waitpid(child, &status, 0) < 0) {
        if (errno != EINTR) return false;
    }
    return WIFEXITED(status) && WEXITSTATUS(status) == 0;
}

}  // namespace

bool userNamespacesWork() {
    // All texts are made before the fork: afterwards the child must not take memory.
    const std::string users = mapOf(::geteuid());
    const std::string groups = mapOf(::getegid());
    const std::string deny = "deny";
    const pid_t child = ::fork();
    if (child != 0) return child > 0 && waitForSuccess(child);
    const bool works = ::unshare(CLONE_NEWUSER) == 0 && writeWhole("/proc/self/setgroups", deny) &&
                       writeWhole("/proc/self/gid_map", groups) && writeWhole("/proc/self/uid_map", users) &&
                       ::unshare(CLONE_NEWUSER) == 0;
    ::_exit(works ? 0 : 1);
}

}  // namespace platform
