#pragma once

#include "platform/base/Resources.h"

namespace kalyxo {

/// Menu, accelerators, dialogs and texts of the program.
const platform::ResourceTable& ProgramResources();

}  // namespace kalyxo
