#pragma once

#include <span>

#include "platform/base/Resources.h"

namespace kalyxo {

/// The one menu bar.
std::span<const platform::Menu> MainMenu();
/// The text of the menu item with a command, empty when there is none; code page 1253.
std::string_view MenuItemText(platform::UINT command);
/// The one accelerator table.
std::span<const platform::Accelerator> MainAccelerators();

}  // namespace kalyxo
