#include "tools/contentc/commands/ShowProgram.h"

#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <iostream>

#include "tools/contentc/commands/CommandMessages.h"

namespace contentc {

ShownProgram::ShownProgram(const std::filesystem::path& program, const std::filesystem::path& dataFolder) {
    std::string name = program.empty() ? "kalyxo" : program.string();
    std::string option = "--data";
    std::string folder = dataFolder.string();
    std::string follow = "--follow";
    const std::array<char*, 5> arguments{name.data(), option.data(), folder.data(), follow.data(), nullptr};
    if (::posix_spawnp(&process_, name.c_str(), nullptr, nullptr, arguments.data(), environ) == 0) return;
    process_ = -1;
    std::cerr << Phrase{say::programNotFound, {}}.in(localeLanguage()) << '\n';
}

bool ShownProgram::isRunning() {
    if (process_ > 0 && ::waitpid(process_, nullptr, WNOHANG) != 0) process_ = -1;
    return process_ > 0;
}

void ShownProgram::wait() {
    while (process_ > 0 && ::waitpid(process_, nullptr, 0) < 0 && errno == EINTR) {
    }
    process_ = -1;
}

}  // namespace contentc
