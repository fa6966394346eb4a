#pragma once

#include <string_view>

#include "platform/windows/Wnd.h"

namespace kalyxo {

/// Base of the classes that call a component. `Wrapper` states the component's class id and its own name.
template <class Wrapper>
class Component : public platform::CWnd {
  public:
    const platform::CRuntimeClass& GetRuntimeClass() const override {
        static constexpr platform::CRuntimeClass kRuntimeClass{Wrapper::kName};
        return kRuntimeClass;
    }

    /// Creates the component in a window of its own in `parent`; false when the class cannot be created.
    bool Create(std::string_view windowName, platform::DWORD style, const platform::CRect& rect,
                platform::CWnd& parent, platform::UINT id) {
        return CreateControl(Wrapper::kClass, windowName, style, rect, parent, id);
    }

  protected:
    template <class R, class... A>
    R Method(std::int32_t dispid, A&&... arguments) {
        return Invoke<R>(dispid, platform::InvokeKind::method, std::forward<A>(arguments)...);
    }
    template <class R>
    R Get(std::int32_t dispid) {
        return Invoke<R>(dispid, platform::InvokeKind::propertyGet);
    }
    template <class T>
    void Put(std::int32_t dispid, T value) {
        Invoke<void>(dispid, platform::InvokeKind::propertyPut, value);
    }

  private:
    Component() = default;
    friend Wrapper;
};

}  // namespace kalyxo
