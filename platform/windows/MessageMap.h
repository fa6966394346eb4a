#pragma once

#include <tuple>
#include <type_traits>
#include <utility>

#include "platform/base/ControlMessages.h"
#include "platform/drawing/DC.h"
#include "platform/windows/CmdTarget.h"

/// Functions that build the rows of message maps and event sinks. They check each handler's signature and
/// unpack the parameters. Signatures by message:
///   WM_CREATE int(CREATESTRUCT&)        WM_SIZE void(UINT type, int width, int height)
///   WM_ERASEBKGND bool(CDC&)            WM_SETCURSOR bool()      WM_TIMER void(UINT id)
///   WM_MOUSEMOVE, WM_LBUTTONDOWN, WM_LBUTTONUP, WM_LBUTTONDBLCLK void(UINT flags, CPoint)
///   WM_KEYDOWN void(UINT key)           WM_SETFOCUS, WM_KILLFOCUS void(HWND other)
///   WM_PAINT, WM_DESTROY, WM_CLOSE void()
namespace platform {

struct CREATESTRUCT;

namespace detail {

template <class Function>
struct MemberOf;
template <class C, class R, class... A>
struct MemberOf<R (C::*)(A...)> {
    using Class = C;
    using Result = R;
    using Arguments = std::tuple<A...>;
};

template <auto Handler>
using ClassOf = typename MemberOf<decltype(Handler)>::Class;

template <UINT Message, auto Handler>
LRESULT messageThunk(CCmdTarget& target, WPARAM wParam, LPARAM lParam) {
    auto& self = static_cast<ClassOf<Handler>&>(target);
    if constexpr (Message == WM_CREATE) {
        return (self.*Handler)(*reinterpret_cast<CREATESTRUCT*>(lParam));
    } else if constexpr (Message == WM_SIZE) {
        const CPoint size = unpackPoint(lParam);
        (self.*Handler)(static_cast<UINT>(wParam), size.x, size.y);
    } else if constexpr (Message == WM_ERASEBKGND) {
        return (self.*Handler)(*reinterpret_cast<CDC*>(wParam)) ? 1 : 0;
    } else if constexpr (Message == WM_SETCURSOR) {
        return (self.*Handler)() ? 1 : 0;
    } else if constexpr (Message == WM_TIMER || Message == WM_KEYDOWN) {
        (self.*Handler)(static_cast<UINT>(wParam));
    } else if constexpr (Message == WM_SETFOCUS || Message == WM_KILLFOCUS) {
        (self.*Handler)(static_cast<HWND>(wParam));
    } else if constexpr (Message >= WM_MOUSEMOVE && Message <= WM_RBUTTONUP) {
        (self.*Handler)(static_cast<UINT>(wParam), unpackPoint(lParam));
    } else {
        (self.*Handler)();
    }
    return 0;
}

template <class T>
T eventArgument(Variant& v) {
    if constexpr (std::is_same_v<T, Variant&> || std::is_same_v<T, const Variant&>) {
        return v;
    } else {
        return *v.get<std::remove_cvref_t<T>>();
    }
}

template <class T>
bool isArgument(const Variant& v) {
    using Plain = std::remove_cvref_t<T>;
    if constexpr (std::is_same_v<Plain, Variant>) {
        return true;
    } else {
        return v.get<Plain>() != nullptr;
    }
}

template <auto Handler>
bool eventThunk(CCmdTarget& target, std::span<Variant> arguments) {
    using Arguments = typename MemberOf<decltype(Handler)>::Arguments;
    auto& self = static_cast<ClassOf<Handler>&>(target);
    if (arguments.size() != std::tuple_size_v<Arguments>) return false;
    return [&]<std::size_t... I>(std::index_sequence<I...>) {
        if (!(isArgument<std::tuple_element_t<I, Arguments>>(arguments[I]) && ...)) return false;
        return (self.*Handler)(eventArgument<std::tuple_element_t<I, Arguments>>(arguments[I])...);
    }(std::make_index_sequence<std::tuple_size_v<Arguments>>());
}

}  // namespace detail

/// The row of a message, whose handler has the signature that stands above for it.
template <UINT Message, auto Handler>
constexpr MessageMapEntry OnMessage() {
    return {.id = Message, .message = &detail::messageThunk<Message, Handler>};
}

/// The row of a command that a menu, key or control sends.
template <auto Handler>
constexpr MessageMapEntry OnCommandId(UINT id) {
    return {.id = id, .command = [](CCmdTarget& target) {
                (static_cast<detail::ClassOf<Handler>&>(target).*Handler)();
            }};
}

/// The row of the question whether a command can be given now.
template <auto Handler>
constexpr MessageMapEntry OnUpdateId(UINT id) {
    return {.id = id, .update = [](CCmdTarget& target, CCmdUI& ui) {
                (static_cast<detail::ClassOf<Handler>&>(target).*Handler)(ui);
            }};
}

/// A control's command other than a click: `void Handler()`.
template <auto Handler>
constexpr MessageMapEntry OnControl(int id, int code) {
    return OnCommandId<Handler>(controlCode(id, code));
}

/// A control's notification: `LRESULT Handler(NMHDR&)`, or the structure that goes with the code.
template <auto Handler>
constexpr MessageMapEntry OnNotify(int id, int code) {
    return {.id = controlCode(id, code), .notify = [](CCmdTarget& target, NMHDR& notification) {
                using Arguments = typename detail::MemberOf<decltype(Handler)>::Arguments;
                auto& self = static_cast<detail::ClassOf<Handler>&>(target);
                return (self.*Handler)(static_cast<std::tuple_element_t<0, Arguments>>(notification));
            }};
}

/// The row of an event that a hosted component raises.
template <auto Handler>
constexpr EventSinkEntry OnComponentEvent(int componentId, std::int32_t dispid) {
    return {componentId, dispid, &detail::eventThunk<Handler>};
}

}  // namespace platform
