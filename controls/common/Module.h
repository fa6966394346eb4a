#pragma once

#include "platform/components/ComponentModule.h"

namespace controls {

/// The component of a module. The module's own Module.cpp defines it; the shared Module.cpp exports it.
extern const platform::ComponentModule componentModule;

}  // namespace controls
