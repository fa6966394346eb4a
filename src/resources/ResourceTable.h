#pragma once

#include "platform/framework/Resources.h"

namespace kalyxo {

/// Menu, accelerators, dialogs and texts of the program.
const platform::ResourceTable& ProgramResources();

}  // namespace kalyxo
