#pragma once

#include <cstddef>
#include <span>
#include <string_view>

namespace drive {

class Act;
class Program;

/// A command of scripts.
struct Command {
    std::string_view name;
    std::size_t least;  ///< number of arguments
    std::size_t most;
    void (*carryOut)(Act& act, Program& program);
};

inline constexpr std::size_t kAnyNumber = 1000;

/// The command of this name, or null.
const Command* findCommand(std::string_view name);

/// The commands by subject.
std::span<const Command> programCommands();
std::span<const Command> inputCommands();
std::span<const Command> frameCommands();
std::span<const Command> stateCommands();
std::span<const Command> clipboardCommands();
std::span<const Command> pictureCommands();
std::span<const Command> pageCommands();
std::span<const Command> componentCommands();
std::span<const Command> dialogCommands();
std::span<const Command> controlCommands();
std::span<const Command> accessibleCommands();

}  // namespace drive
