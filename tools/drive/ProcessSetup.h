#pragma once

#include <string>

#include "platform/machine/MachineConfig.h"

namespace drive {

/// From now on a fatal signal ends the process with exit status 1 and a line on standard error.
void reportCrashes();

/// The argument of `-platform` that gives the application object an invisible screen of this size.
std::string offscreenPlatform(const platform::ScreenConfig& screen);

}  // namespace drive
