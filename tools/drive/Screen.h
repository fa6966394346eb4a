#pragma once

#include <string>

#include "platform/machine/MachineConfig.h"

namespace drive {

/// A screen of this size that nobody sees: the argument of `-platform` for the application object.
std::string unseenScreen(const platform::ScreenConfig& screen);

}  // namespace drive
