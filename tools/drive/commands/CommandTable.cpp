#include "tools/drive/commands/CommandTable.h"

#include <algorithm>

namespace drive {

const Command* findCommand(std::string_view name) {
    for (const auto commands : {programCommands(), inputCommands(), frameCommands(), stateCommands(),
                                clipboardCommands(), pictureCommands(), pageCommands(), componentCommands(),
                                dialogCommands(), controlCommands(), accessibleCommands()}) {
        const auto found = std::ranges::find(commands, name, &Command::name);
        if (found != commands.end()) return &*found;
    }
    return nullptr;
}

}  // namespace drive
