#pragma once

#include <filesystem>
#include <optional>
#include <span>
#include <string_view>
#include <variant>

#include "platform/base/Result.h"

namespace drive {

/// The task to run a script on a machine.
struct RunScript {
    std::filesystem::path machine;
    std::optional<std::filesystem::path> script;  ///< standard input when there is none
    bool follow = false;                          ///< whether the program follows changes of its content
};

/// The task to make a machine folder.
struct NewMachine {
    std::filesystem::path machine;
    std::filesystem::path data;
    bool outside = false;
    bool bare = false;
};

/// What the arguments ask for.
using Task = std::variant<RunScript, NewMachine>;

/// Reads the arguments that follow the program's name. Options may come in any order.
platform::Result<Task> taskOf(std::span<const char* const> arguments);

/// How the program is called.
std::string_view usage();

}  // namespace drive
