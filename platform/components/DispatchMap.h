#pragma once

#include <array>
#include <optional>
#include <span>
#include <tuple>
#include <utility>

#include "platform/components/Component.h"

/// Builds a component's table of operations from member functions, so that argument types are written only
/// once. A component declares
///     static constexpr auto operationTable = std::array{
///         Method<2, &Select::getPageTitle>("GetPageTitle"), PropertyGet<1, &Select::version>("Version")};
/// and its `invoke` returns `dispatch(*this, operationTable, …)`.
namespace platform {

namespace detail {

template <class T>
struct TypeOf;
template <>
struct TypeOf<void> {
    static constexpr TypeCode code = TypeCode::none;
};
template <>
struct TypeOf<std::int16_t> {
    static constexpr TypeCode code = TypeCode::i2;
};
template <>
struct TypeOf<std::int32_t> {
    static constexpr TypeCode code = TypeCode::i4;
};
template <>
struct TypeOf<bool> {
    static constexpr TypeCode code = TypeCode::boolean;
};
template <>
struct TypeOf<std::string> {
    static constexpr TypeCode code = TypeCode::text;
};
template <>
struct TypeOf<Variant> {
    static constexpr TypeCode code = TypeCode::variant;
};
template <>
struct TypeOf<bool*> {
    static constexpr TypeCode code = TypeCode::booleanRef;
};
template <>
struct TypeOf<std::shared_ptr<Dispatch>> {
    static constexpr TypeCode code = TypeCode::dispatch;
};

template <class T>
inline constexpr TypeCode typeCode = TypeOf<std::remove_cvref_t<T>>::code;

/// A variant argument as T; a Variant parameter takes any value.
template <class T>
std::optional<T> argument(const Variant& v) {
    if constexpr (std::is_same_v<T, Variant>) {
        return v;
    } else {
        const T* held = v.get<T>();
        return held ? std::optional<T>(*held) : std::nullopt;
    }
}

template <class Function>
struct Signature;
template <class C, class R, class... A>
struct Signature<R (C::*)(A...)> {
    using Class = C;
    using Result = R;
    using Arguments = std::tuple<std::remove_cvref_t<A>...>;
    static constexpr std::array<TypeCode, sizeof...(A)> types{typeCode<A>...};
};
template <class C, class R, class... A>
struct Signature<R (C::*)(A...) const> : Signature<R (C::*)(A...)> {};

template <auto Function>
std::optional<Variant> call(typename Signature<decltype(Function)>::Class& object,
                            std::span<const Variant> given) {
    using S = Signature<decltype(Function)>;
    constexpr std::size_t count = S::types.size();
    if (given.size() != count) return std::nullopt;
    return [&]<std::size_t... I>(std::index_sequence<I...>) -> std::optional<Variant> {
        auto values = std::tuple{argument<std::tuple_element_t<I, typename S::Arguments>>(given[I])...};
        if (!(std::get<I>(values).has_value() && ...)) return std::nullopt;
        if constexpr (std::is_void_v<typename S::Result>) {
            (object.*Function)(*std::get<I>(values)...);
            return Variant();
        } else {
            return Variant((object.*Function)(*std::get<I>(values)...));
        }
    }(std::make_index_sequence<count>());
}

}  // namespace detail

/// A row of the table: what the operation is called and takes, and the function that runs it.
template <class C>
struct Operation {
    OperationInfo info;
    std::optional<Variant> (*call)(C& object, std::span<const Variant> arguments);
};

/// The row of a member function.
template <std::int32_t Dispid, auto Function, InvokeKind Kind = InvokeKind::method>
constexpr auto Method(std::string_view name) {
    using S = detail::Signature<decltype(Function)>;
    return Operation<typename S::Class>{{Dispid, Kind, name, S::types}, &detail::call<Function>};
}

/// The row of a member function that returns a property.
template <std::int32_t Dispid, auto Function>
constexpr auto PropertyGet(std::string_view name) {
    return Method<Dispid, Function, InvokeKind::propertyGet>(name);
}

/// The row of a member function that sets a property.
template <std::int32_t Dispid, auto Function>
constexpr auto PropertyPut(std::string_view name) {
    return Method<Dispid, Function, InvokeKind::propertyPut>(name);
}

/// The descriptions of a table's operations.
template <class C, std::size_t N>
constexpr std::array<OperationInfo, N> describe(const std::array<Operation<C>, N>& table) {
    std::array<OperationInfo, N> infos{};
    for (std::size_t i = 0; i < N; ++i) infos[i] = table[i].info;
    return infos;
}

/// Runs an operation of the table. Nothing when the table has no such operation, or the arguments do not fit
/// it.
template <class C, std::size_t N>
std::optional<Variant> dispatch(C& object, const std::array<Operation<C>, N>& table, std::int32_t dispid,
                                InvokeKind kind, std::span<const Variant> arguments) {
    for (const auto& operation : table) {
        if (operation.info.dispid == dispid && operation.info.kind == kind) {
            return operation.call(object, arguments);
        }
    }
    return std::nullopt;
}

}  // namespace platform
