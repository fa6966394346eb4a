#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "platform/components/Component.h"

class QWidget;

namespace platform {

/// Hosts one component in a window: creates it by its class, passes calls to it and events from it. The host
/// may be destroyed at any time, even in a handler of the component's events; no event arrives after that.
class ComponentHost {
  public:
    /// Receives the component's events; it may change the arguments that are references.
    using EventHandler = std::function<void(std::int32_t dispid, std::span<Variant> arguments)>;

    /// Makes a component whose widget is a child of `container`; null when it cannot.
    using Creator = std::function<std::unique_ptr<Component>(ComponentSite& site, QWidget* container)>;
    /// Adds a class (GUID text without braces) that is part of the program: `creator` makes its components,
    /// without a module.
    static void addBuiltIn(std::string classId, Creator creator);

    /// Creates the component of a class (GUID text without braces, in upper or lower case), which fills
    /// `container`. The container must outlive the host. Null when the class is not registered, or its module
    /// cannot be loaded, has another interface version or makes no component. `handler` may be empty.
    static std::unique_ptr<ComponentHost> create(std::string_view classId, QWidget* container,
                                                 EventHandler handler);
    ~ComponentHost();
    ComponentHost(const ComponentHost&) = delete;
    ComponentHost& operator=(const ComponentHost&) = delete;

    Component& component();
    const Component& component() const;

    /// Calls an operation; see Component::invoke.
    std::optional<Variant> invoke(std::int32_t dispid, InvokeKind kind, std::span<const Variant> arguments);

    /// See Component::block and Component::keepBlock. Nothing and 0 once the component is gone.
    std::span<const std::byte> block(std::int32_t location) const;
    std::int32_t keepBlock(std::span<const std::byte> bytes);

    /// Raises an event as if the component did.
    void raiseEvent(std::int32_t dispid, std::span<Variant> arguments);

  private:
    struct Hosted;
    explicit ComponentHost(std::shared_ptr<Hosted> hosted);
    std::shared_ptr<Hosted> hosted_;
};

}  // namespace platform
