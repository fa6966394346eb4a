#pragma once

#include <string_view>

#include "platform/automation/Control.h"

namespace platform {

/// Writes a module's classes into the registry; the host knows the module's path.
class ModuleRegistrar {
  public:
    virtual ~ModuleRegistrar() = default;
    /// `classId` is a GUID text without braces.
    virtual void registerClass(std::string_view classId) = 0;
};

/// What a loaded module offers: one control class.
struct ControlModule {
    /// Changes whenever Control, ControlSite or Variant change; the host refuses other numbers.
    static constexpr int currentInterface = 3;
    int interfaceVersion = currentInterface;
    std::string_view classId;
    ControlFactory create = nullptr;
};

/// Names and types of the two functions that each module exports with C linkage.
inline constexpr const char* registerServerName = "DllRegisterServer";
inline constexpr const char* classObjectName = "DllGetClassObject";
using RegisterServerFunction = void (*)(ModuleRegistrar&);
using ClassObjectFunction = const ControlModule* (*)();

}  // namespace platform
