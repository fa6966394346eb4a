#pragma once

#include <span>
#include <string_view>

#include "platform/components/Component.h"

namespace platform {

/// Writes a module's classes into the registry. The host knows the path of the module.
class ModuleRegistrar {
  public:
    virtual ~ModuleRegistrar() = default;
    /// `classId` is a GUID text without braces.
    virtual void registerClass(std::string_view classId) = 0;
};

/// What a component class shows where a page names it in an OBJECT element: a part of the page, without a
/// window of its own.
struct PagePart {
    /// The part's document, a resource path such as ":/zoom/zoom.html"; empty when the class has none. It is
    /// shown in a frame. The attributes of the element, with names in lower case, become parameters of the
    /// document's query.
    std::string_view document;
    /// The commands that the part may send to the window around the browser, as the second parameter of
    /// WM_COMMAND. It sends one by setting its frame's address to the same query with `command=NUMBER`.
    std::span<const LPARAM> commands;
};

/// What a loaded module offers: one component class.
struct ComponentModule {
    /// Increased whenever this struct, Component, ComponentSite or Variant change. The host refuses other
    /// numbers.
    static constexpr int currentInterface = 4;
    int interfaceVersion = currentInterface;
    std::string_view classId;
    ComponentFactory create = nullptr;
    PagePart pagePart{};
};

/// Names and types of the two functions that each module exports with C linkage.
inline constexpr const char* registerServerName = "DllRegisterServer";
inline constexpr const char* classObjectName = "DllGetClassObject";
using RegisterServerFunction = void (*)(ModuleRegistrar&);
using ClassObjectFunction = const ComponentModule* (*)();

}  // namespace platform
