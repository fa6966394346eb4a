#include "tests/scenarios/DriverProcess.h"

#include <fcntl.h>
#include <poll.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <csignal>
#include <fstream>
#include <utility>

namespace scenario {

namespace {

constexpr int kPatienceMs = 60'000;
constexpr int kSignalled = 128;

void closeOnce(int& descriptor) {
    if (descriptor >= 0) ::close(std::exchange(descriptor, -1));
}

[[noreturn]] void becomeDriver(std::vector<char*> argv, const char* folder, int input, int output) {
    ::dup2(input, STDIN_FILENO);
    ::dup2(output, STDOUT_FILENO);
    if (::chdir(folder) == 0) ::execv(argv[0], argv.data());
    ::_exit(127);
}

}  // namespace

DriverProcess::DriverProcess(const std::vector<std::string>& arguments, const std::filesystem::path& folder) {
    std::array<int, 2> input{-1, -1};
    std::array<int, 2> output{-1, -1};
    if (::pipe2(input.data(), O_CLOEXEC) != 0 || ::pipe2(output.data(), O_CLOEXEC) != 0) return;
    std::vector<char*> argv;
    argv.reserve(arguments.size() + 1);
    for (const std::string& argument : arguments) argv.push_back(const_cast<char*>(argument.c_str()));
    argv.push_back(nullptr);
    // A driver that dies while a line is written shows by its missing answer.
    std::signal(SIGPIPE, SIG_IGN);
    m_pid = ::fork();
    if (m_pid == 0) becomeDriver(argv, folder.c_str(), input[0], output[1]);
    ::close(input[0]);
    ::close(output[1]);
    m_input = input[1];
    m_output = output[0];
}

DriverProcess::~DriverProcess() {
    closeOnce(m_input);
    closeOnce(m_output);
    if (m_pid <= 0) return;
    ::kill(m_pid, SIGKILL);
    ::waitpid(m_pid, nullptr, 0);
}

std::optional<std::string> DriverProcess::Ask(const std::string& line) {
    const std::string bytes = line + '\n';
    if (::write(m_input, bytes.data(), bytes.size()) != static_cast<ssize_t>(bytes.size()))
        return std::nullopt;
    return readLine();
}

std::optional<std::string> DriverProcess::readLine() {
    std::size_t end = m_read.find('\n');
    while (end == std::string::npos) {
        pollfd waited{m_output, POLLIN, 0};
        std::array<char, 65536> bytes;
        if (::poll(&waited, 1, kPatienceMs) <= 0) return std::nullopt;
        const ssize_t count = ::read(m_output, bytes.data(), bytes.size());
        if (count <= 0) return std::nullopt;
        m_read.append(bytes.data(), static_cast<std::size_t>(count));
        end = m_read.find('\n');
    }
    std::string line = m_read.substr(0, end);
    m_read.erase(0, end + 1);
    return line;
}

bool DriverProcess::HasLoaded(const std::string& name) const {
    std::ifstream maps("/proc/" + std::to_string(m_pid) + "/maps");
    for (std::string line; std::getline(maps, line);) {
        if (line.find('/' + name) != std::string::npos) return true;
    }
    return false;
}

int DriverProcess::Finish() {
    closeOnce(m_input);
    int status = 0;
    if (m_pid <= 0 || ::waitpid(std::exchange(m_pid, -1), &status, 0) < 0) return kSignalled;
    return WIFEXITED(status) ? WEXITSTATUS(status) : kSignalled + WTERMSIG(status);
}

}  // namespace scenario
