#pragma once

#include <filesystem>
#include <optional>
#include <span>
#include <string_view>
#include <variant>

#include "platform/base/Result.h"

namespace drive {

/// Run a script on a machine.
struct RunScript {
    std::filesystem::path machine;
    std::optional<std::filesystem::path> script;  ///< standard input when there is none
};

/// Make a machine folder.
struct NewMachine {
    std::filesystem::path machine;
    std::filesystem::path data;
    bool outside = false;
    bool bare = false;
};

/// What the arguments ask for.
using Task = std::variant<RunScript, NewMachine>;

/// Reads the arguments behind the program's name; options in any order.
platform::Result<Task> taskOf(std::span<const char* const> arguments);

/// How the program is called.
std::string_view usage();

}  // namespace drive
