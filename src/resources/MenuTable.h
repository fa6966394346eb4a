#pragma once

#include <span>

#include "platform/framework/Resources.h"

namespace kalyxo {

/// The one menu bar.
std::span<const platform::Menu> MainMenu();
/// The one accelerator table.
std::span<const platform::Accelerator> MainAccelerators();

}  // namespace kalyxo
