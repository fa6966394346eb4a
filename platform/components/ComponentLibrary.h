#pragma once

#include <string_view>

#include "platform/components/ComponentModule.h"

namespace platform {

/// Has a control library enter its class into the machine's registry: loads the library (DOS path) and calls
/// its registration function when it has one, which is recorded in the trace. False, and nothing else, when
/// it cannot be loaded or has none. A loaded library stays so until the process ends.
bool registerModule(std::string_view dosPath);

/// The module that serves a class (GUID text without braces, letters in any case) by the machine's
/// registry; null when the class is not registered, or its library cannot be loaded, is of another interface
/// version, makes no controls, or serves another class.
const ComponentModule* loadRegisteredClass(std::string_view classId);

}  // namespace platform
