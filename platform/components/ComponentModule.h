#pragma once

#include <span>
#include <string_view>

#include "platform/components/Component.h"

namespace platform {

/// Writes a module's classes into the registry; the host knows the module's path.
class ModuleRegistrar {
  public:
    virtual ~ModuleRegistrar() = default;
    /// `classId` is a GUID text without braces.
    virtual void registerClass(std::string_view classId) = 0;
};

/// What a control class shows where a page names it in an OBJECT element: a part of the page without a window
/// of its own.
struct PagePart {
    /// The part's document, a resource path such as ":/zoom/zoom.html"; empty when the class has none. It is
    /// shown in a frame with the element's attributes, by names in lower case, as parameters of the query.
    std::string_view document;
    /// The commands that it may send to the window around the browser, as second parameter of WM_COMMAND. It
    /// sends one by setting its frame's address to the same query with `command=NUMBER`.
    std::span<const LPARAM> commands;
};

/// What a loaded module offers: one control class.
struct ComponentModule {
    /// Changes whenever this, Component, ComponentSite or Variant change; the host refuses other numbers.
    static constexpr int currentInterface = 4;
    int interfaceVersion = currentInterface;
    std::string_view classId;
    ControlFactory create = nullptr;
    PagePart pagePart{};
};

/// Names and types of the two functions that each module exports with C linkage.
inline constexpr const char* registerServerName = "DllRegisterServer";
inline constexpr const char* classObjectName = "DllGetClassObject";
using RegisterServerFunction = void (*)(ModuleRegistrar&);
using ClassObjectFunction = const ComponentModule* (*)();

}  // namespace platform
