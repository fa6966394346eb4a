#pragma once

#include <gtest/gtest.h>

#include <cstdlib>
#include <initializer_list>
#include <utility>
#include <vector>

#include "platform/components/Component.h"

/// The host of a component under test. It records the events that the component raises.
class RecordingSite : public platform::ComponentSite {
  public:
    struct Event {
        std::int32_t dispid;
        std::vector<platform::Variant> arguments;
    };

    void raiseEvent(std::int32_t dispid, std::span<platform::Variant> arguments) override {
        events.push_back({dispid, {arguments.begin(), arguments.end()}});
    }
    platform::HWND registerWindow(QWidget&, std::string, platform::MessageProc) override { return 1; }
    platform::LRESULT sendMessage(platform::HWND, platform::UINT, platform::WPARAM,
                                  platform::LPARAM) override {
        return 0;
    }
    // No component under test reads files.
    const platform::FileSystem& files() const override { std::abort(); }

    std::vector<Event> events;
};

/// @name Calls of operations by id.
/// @{
template <class... A>
std::optional<platform::Variant> invoke(platform::Component& component, std::int32_t dispid,
                                        platform::InvokeKind kind, A&&... arguments) {
    const std::vector<platform::Variant> values{platform::Variant(std::forward<A>(arguments))...};
    return component.invoke(dispid, kind, values);
}

template <class... A>
void call(platform::Component& component, std::int32_t dispid, A&&... arguments) {
    const auto result =
        invoke(component, dispid, platform::InvokeKind::method, std::forward<A>(arguments)...);
    ASSERT_TRUE(result && result->empty()) << "operation " << dispid;
}

/// Calls an operation whose result must be of the type `R`.
template <class R, class... A>
R ask(platform::Component& component, std::int32_t dispid, platform::InvokeKind kind, A&&... arguments) {
    const std::optional<platform::Variant> result =
        invoke(component, dispid, kind, std::forward<A>(arguments)...);
    const R* value = result ? result->get<R>() : nullptr;
    EXPECT_NE(value, nullptr) << "operation " << dispid;
    return value ? *value : R();
}

template <class R>
R property(platform::Component& component, std::int32_t dispid) {
    return ask<R>(component, dispid, platform::InvokeKind::propertyGet);
}

template <class T>
void put(platform::Component& component, std::int32_t dispid, T value) {
    const auto result = invoke(component, dispid, platform::InvokeKind::propertyPut, value);
    ASSERT_TRUE(result && result->empty()) << "property " << dispid;
}
/// @}
