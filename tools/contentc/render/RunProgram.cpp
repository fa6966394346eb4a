#include "tools/contentc/render/RunProgram.h"

#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <cerrno>

namespace contentc {
namespace {

/// What a new process does before it begins: its three streams.
class StreamActions {
  public:
    explicit StreamActions(int errors) {
        posix_spawn_file_actions_init(&actions_);
        posix_spawn_file_actions_addopen(&actions_, STDIN_FILENO, "/dev/null", O_RDONLY, 0);
        posix_spawn_file_actions_addopen(&actions_, STDOUT_FILENO, "/dev/null", O_WRONLY, 0);
        posix_spawn_file_actions_adddup2(&actions_, errors, STDERR_FILENO);
    }
    ~StreamActions() { posix_spawn_file_actions_destroy(&actions_); }
    StreamActions(const StreamActions&) = delete;
    StreamActions& operator=(const StreamActions&) = delete;

    const posix_spawn_file_actions_t* get() const { return &actions_; }

  private:
    posix_spawn_file_actions_t actions_{};
};

std::string readToEnd(int from) {
    std::string text;
    std::array<char, 4096> part{};
    for (;;) {
        const ssize_t size = ::read(from, part.data(), part.size());
        if (size > 0) text.append(part.data(), static_cast<std::size_t>(size));
        if (size == 0 || (size < 0 && errno != EINTR)) return text;
    }
}

pid_t start(const std::vector<std::string>& arguments, int errors) {
    std::vector<char*> argv;
    argv.reserve(arguments.size() + 1);
    for (const std::string& argument : arguments) argv.push_back(const_cast<char*>(argument.c_str()));
    argv.push_back(nullptr);
    const StreamActions actions(errors);
    pid_t child = -1;
    return ::posix_spawnp(&child, argv[0], actions.get(), nullptr, argv.data(), environ) == 0 ? child : -1;
}

}  // namespace

ProgramEnd runProgram(const std::vector<std::string>& arguments) {
    std::array<int, 2> ends{};
    if (::pipe2(ends.data(), O_CLOEXEC) != 0) return {};
    const pid_t child = start(arguments, ends[1]);
    ::close(ends[1]);
    ProgramEnd end;
    end.started = child > 0;
    if (end.started) {
        end.errors = readToEnd(ends[0]);
        int status = 0;
        while (::waitpid(child, &status, 0) < 0 && errno == EINTR) {
        }
        if (WIFEXITED(status)) end.status = WEXITSTATUS(status);
    }
    ::close(ends[0]);
    return end;
}

}  // namespace contentc
