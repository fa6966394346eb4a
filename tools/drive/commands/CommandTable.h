#pragma once

#include <cstddef>
#include <span>
#include <string_view>

namespace drive {

class Request;
class Program;

/// A command that scripts can give.
struct Command {
    std::string_view name;
    std::size_t minArguments;
    std::size_t maxArguments;
    void (*carryOut)(Request& request, Program& program);
};

inline constexpr std::size_t anyNumber = 1000;

/// The command of this name, null when there is none.
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
