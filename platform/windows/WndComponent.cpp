#include <algorithm>

#include "platform/machine/Machine.h"
#include "platform/qt/QtChild.h"
#include "platform/qt/QtConvert.h"
#include "platform/windows/ComponentContainer.h"
#include "platform/windows/Wnd.h"

/// CWnd as the wrapper of a hosted component.
namespace platform {

namespace {

TraceValue traceValue(const Variant& variant) {
    if (const auto* const i2 = variant.get<std::int16_t>()) return std::int64_t{*i2};
    if (const auto* const i4 = variant.get<std::int32_t>()) return std::int64_t{*i4};
    if (const auto* const boolean = variant.get<bool>()) return *boolean;
    if (const auto* const text = variant.get<std::string>()) return *text;
    const auto* const reference = variant.get<bool*>();
    return reference && *reference ? TraceValue(**reference) : TraceValue();
}

TraceCallKind traceKind(InvokeKind kind) {
    if (kind == InvokeKind::propertyGet) return TraceCallKind::get;
    return kind == InvokeKind::propertyPut ? TraceCallKind::put : TraceCallKind::method;
}

std::string operationName(const Component& component, std::int32_t dispid, InvokeKind kind) {
    const auto operations = component.operations();
    const auto found = std::ranges::find_if(operations, [=](const OperationInfo& operation) {
        return operation.dispid == dispid && operation.kind == kind;
    });
    return found == operations.end() ? std::string() : std::string(found->name);
}

}  // namespace

bool CWnd::CreateControl(std::string_view classId, std::string_view name, DWORD style, const CRect& rect,
                         CWnd& parent, UINT id) {
    WindowWidget* const parentWidget = WindowWidget::of(parent);
    if (handle_ != 0 || !parentWidget) return false;
    auto& container = makeQtChild<ComponentContainer>(*this, parentWidget, static_cast<int>(id));
    container.setWindowTitle(toQt(name));
    if (!container.createComponent(classId)) {
        container.end();
        return false;
    }
    container.place(toQt(rect));
    if (style & WS_VISIBLE) ShowWindow(SW_SHOW);
    return true;
}

std::optional<Variant> CWnd::InvokeHelper(std::int32_t dispid, InvokeKind kind,
                                          std::span<const Variant> arguments) {
    ComponentHost* const host = componentHostOf(handle_);
    if (!host) return std::nullopt;
    if (!hasMachine() || !machine().trace().enabled()) return host->invoke(dispid, kind, arguments);
    TraceCall call;
    call.control = GetDlgCtrlID();
    call.className = GetRuntimeClass().name;
    call.dispid = dispid;
    call.kind = traceKind(kind);
    call.name = operationName(host->component(), dispid, kind);
    std::optional<Variant> result = host->invoke(dispid, kind, arguments);
    for (const Variant& argument : arguments) call.args.push_back(traceValue(argument));
    if (result) call.result = traceValue(*result);
    machine().trace().record(std::move(call));
    return result;
}

std::span<const std::byte> CWnd::ComponentBlock(std::int32_t location) const {
    const ComponentHost* const host = componentHostOf(handle_);
    return host ? host->block(location) : std::span<const std::byte>();
}

std::int32_t CWnd::KeepComponentBlock(std::span<const std::byte> bytes) {
    ComponentHost* const host = componentHostOf(handle_);
    return host ? host->keepBlock(bytes) : 0;
}

}  // namespace platform
