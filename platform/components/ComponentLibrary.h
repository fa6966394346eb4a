#pragma once

#include <string_view>

#include "platform/components/ComponentModule.h"

namespace platform {

/// Has a component library register its class in the machine's registry: loads the library (DOS path), calls
/// its registration function, which is recorded in the trace, and writes the registry. False when the library
/// cannot be loaded or has no such function. A loaded library stays loaded until the process ends.
bool registerModule(std::string_view dosPath);

/// The module of a class (GUID text without braces, in upper or lower case) according to the machine's
/// registry. Null when the class is not registered, or its library cannot be loaded, has another interface
/// version, makes no components, or has another class.
const ComponentModule* loadRegisteredClass(std::string_view classId);

}  // namespace platform
