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

/// Hosts one control in a window: creates it by its class, carries calls to it and events from it.
/// The host may be destroyed at any time, inside a handler of the control's own events too; no event
/// arrives from then on.
class ComponentHost {
  public:
    /// Receives the control's events; it may change the arguments that are references.
    using EventHandler = std::function<void(std::int32_t dispid, std::span<Variant> arguments)>;

    /// Makes a component, whose widget belongs to `container`; null when it cannot.
    using Creator = std::function<std::unique_ptr<Component>(ComponentSite& site, QWidget* container)>;
    /// From now on components of this class (GUID text without braces) are made by `creator`, without a
    /// module.
    static void addBuiltIn(std::string classId, Creator creator);

    /// Creates the control of a class (GUID text without braces, letters in any case), filling
    /// `container`, which must outlive the host. Null when the class is not registered, its module cannot
    /// be loaded, is of another interface version, or makes no control. `handler` may be empty.
    static std::unique_ptr<ComponentHost> create(std::string_view classId, QWidget* container,
                                                 EventHandler handler);
    ~ComponentHost();
    ComponentHost(const ComponentHost&) = delete;
    ComponentHost& operator=(const ComponentHost&) = delete;

    Component& control();
    const Component& control() const;

    /// Calls an operation; see Component::invoke.
    std::optional<Variant> invoke(std::int32_t dispid, InvokeKind kind, std::span<const Variant> arguments);

    /// See Component::block and Component::keepBlock; nothing and 0 once the control has gone.
    std::span<const std::byte> block(std::int32_t location) const;
    std::int32_t keepBlock(std::span<const std::byte> bytes);

    /// Raises an event as if the control did.
    void raiseEvent(std::int32_t dispid, std::span<Variant> arguments);

  private:
    struct Hosted;
    explicit ComponentHost(std::shared_ptr<Hosted> hosted);
    std::shared_ptr<Hosted> hosted_;
};

}  // namespace platform
