#include "bench/ChildProcess.h"

#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <csignal>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <map>
#include <sstream>
#include <utility>

namespace {

using Pipe = std::array<int, 2>;

Pipe makePipe() {
    Pipe ends{-1, -1};
    if (::pipe(ends.data()) != 0) std::abort();
    return ends;
}

/// What the host tells of a process after its name, from its state on; empty when it is gone.
std::vector<std::string> statusOf(const std::string& pid) {
    std::ifstream stat("/proc/" + pid + "/stat");
    std::string text;
    std::getline(stat, text);
    // The command's name stands in brackets and may hold blanks.
    const std::size_t bracket = text.rfind(')');
    if (bracket == std::string::npos) return {};
    std::istringstream rest(text.substr(bracket + 1));
    return {std::istream_iterator<std::string>(rest), {}};
}

using Children = std::multimap<pid_t, pid_t>;

/// The running processes by their parents.
Children childrenByParent() {
    constexpr std::size_t parentField = 1;
    Children children;
    for (const auto& entry : std::filesystem::directory_iterator("/proc")) {
        const std::string name = entry.path().filename();
        if (name.find_first_not_of("0123456789") != std::string::npos) continue;
        const auto status = statusOf(name);
        if (status.size() > parentField) children.emplace(std::stoi(status[parentField]), std::stoi(name));
    }
    return children;
}

std::size_t proportionalBytes(pid_t pid) {
    std::ifstream rollup("/proc/" + std::to_string(pid) + "/smaps_rollup");
    std::string word;
    while (rollup >> word) {
        std::size_t kilobytes = 0;
        if (word == "Pss:" && rollup >> kilobytes) return kilobytes * 1024;
    }
    return 0;
}

double ownProcessorSeconds(pid_t pid) {
    constexpr std::size_t userField = 11;
    constexpr std::size_t systemField = 12;
    const auto status = statusOf(std::to_string(pid));
    if (status.size() <= systemField) return 0;
    const double ticks = std::stod(status[userField]) + std::stod(status[systemField]);
    return ticks / static_cast<double>(::sysconf(_SC_CLK_TCK));
}

/// The sum over a process and all its descendants.
template <class Measure>
auto sumOverTree(pid_t pid, const Children& children, Measure measure) -> decltype(measure(pid)) {
    auto total = measure(pid);
    const auto [first, last] = children.equal_range(pid);
    for (auto at = first; at != last; ++at) total += sumOverTree(at->second, children, measure);
    return total;
}

}  // namespace

ChildProcess::ChildProcess(const std::vector<std::string>& arguments) {
    const Pipe input = makePipe();
    const Pipe output = makePipe();
    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_adddup2(&actions, input[0], STDIN_FILENO);
    posix_spawn_file_actions_adddup2(&actions, output[1], STDOUT_FILENO);
    for (const int end : {input[0], input[1], output[0], output[1]}) {
        posix_spawn_file_actions_addclose(&actions, end);
    }
    std::vector<char*> argv;
    argv.reserve(arguments.size() + 1);
    for (const std::string& argument : arguments) argv.push_back(const_cast<char*>(argument.c_str()));
    argv.push_back(nullptr);
    if (::posix_spawn(&pid_, argv[0], &actions, nullptr, argv.data(), environ) != 0) pid_ = -1;
    posix_spawn_file_actions_destroy(&actions);
    ::close(input[0]);
    ::close(output[1]);
    input_.reset(::fdopen(input[1], "w"));
    output_.reset(::fdopen(output[0], "r"));
}

ChildProcess::~ChildProcess() {
    input_.reset();
    if (pid_ <= 0) return;
    ::kill(pid_, SIGTERM);
    ::waitpid(pid_, nullptr, 0);
}

void ChildProcess::writeLine(const std::string& line) {
    std::fprintf(input_.get(), "%s\n", line.c_str());
    std::fflush(input_.get());
}

std::string ChildProcess::readLine() {
    char* line = nullptr;
    std::size_t room = 0;
    const ssize_t length = ::getline(&line, &room, output_.get());
    const std::unique_ptr<char, void (*)(void*)> owner(line, &std::free);
    return length > 0 ? std::string(line, static_cast<std::size_t>(length)) : std::string();
}

std::size_t ChildProcess::memory() const { return sumOverTree(pid_, childrenByParent(), proportionalBytes); }

double ChildProcess::processorSeconds() const {
    return sumOverTree(pid_, childrenByParent(), ownProcessorSeconds);
}

bool ChildProcess::succeeded() {
    int status = 0;
    return ::waitpid(std::exchange(pid_, -1), &status, 0) > 0 && WIFEXITED(status) &&
           WEXITSTATUS(status) == 0;
}
