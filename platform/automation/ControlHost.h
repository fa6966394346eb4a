#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <span>
#include <string_view>

#include "platform/automation/Control.h"

class QWidget;

namespace platform {

/// Hosts one control in a window: creates it by its class, carries calls to it and events from it.
/// The host may be destroyed at any time, inside a handler of the control's own events too; no event
/// arrives from then on.
class ControlHost {
  public:
    /// Receives the control's events; it may change the arguments that are references.
    using EventHandler = std::function<void(std::int32_t dispid, std::span<Variant> arguments)>;

    /// Creates the control of a class (GUID text without braces, letters in any case), filling
    /// `container`, which must outlive the host. Null when the class is not registered, its module cannot
    /// be loaded, is of another interface version, or makes no control. `handler` may be empty.
    static std::unique_ptr<ControlHost> create(std::string_view classId, QWidget* container,
                                               EventHandler handler);
    ~ControlHost();
    ControlHost(const ControlHost&) = delete;
    ControlHost& operator=(const ControlHost&) = delete;

    Control& control();
    const Control& control() const;

    /// Calls an operation; see Control::invoke.
    std::optional<Variant> invoke(std::int32_t dispid, InvokeKind kind, std::span<const Variant> arguments);

    /// See Control::block and Control::keepBlock; nothing and 0 once the control has gone.
    std::span<const std::byte> block(std::int32_t location) const;
    std::int32_t keepBlock(std::span<const std::byte> bytes);

    /// Raises an event as if the control did.
    void raiseEvent(std::int32_t dispid, std::span<Variant> arguments);

  private:
    struct Hosted;
    explicit ControlHost(std::shared_ptr<Hosted> hosted);
    std::shared_ptr<Hosted> hosted_;
};

}  // namespace platform
