#include <algorithm>

#include "platform/components/ComponentHost.h"
#include "platform/windows/ComponentContainer.h"
#include "tools/drive/commands/CommandTable.h"

#include "tools/drive/desktop/Windows.h"
#include "tools/drive/script/ComponentValues.h"
#include "tools/drive/script/Numbers.h"
#include "tools/drive/script/Request.h"
#include "tools/drive/script/WindowName.h"

/// Calls of hosted components, as another host would make them.
namespace drive {

using namespace platform;

namespace {

/// The component that the first argument names, with or without `#`; fails the request when there is none.
ComponentHost* componentFor(Request& request) {
    const std::string& word = request.argument(0);
    const std::optional<int> id = number<int>(std::string_view(word).substr(word.starts_with('#') ? 1 : 0));
    ComponentHost* host = id ? componentHostOf(findWindow(IdName{*id})) : nullptr;
    if (host == nullptr) request.fail("no component has the id " + word);
    return host;
}

/// The operation of that name, null when there is none. A property is put when there is an argument, else
/// got.
const OperationInfo* operationNamed(const Component& component, std::string_view name, bool hasArguments) {
    const InvokeKind property = hasArguments ? InvokeKind::propertyPut : InvokeKind::propertyGet;
    const auto operations = component.operations();
    const auto found = std::ranges::find_if(operations, [&](const OperationInfo& operation) {
        return operation.name == name && (operation.kind == InvokeKind::method || operation.kind == property);
    });
    return found == operations.end() ? nullptr : &*found;
}

void control(Request& request, Program&) {
    ComponentHost* host = componentFor(request);
    if (host == nullptr) return;
    const OperationInfo* operation =
        operationNamed(host->component(), request.argument(1), request.argumentCount() > 2);
    if (operation == nullptr) return request.fail("it has no operation " + request.argument(1));
    const auto arguments = componentArguments(operation->arguments, request.argumentsFrom(2));
    if (!arguments) return request.fail("these are not its arguments");
    request.set("result", nullptr);
    const std::optional<Variant> result = host->invoke(operation->dispid, operation->kind, arguments->values);
    if (!result) return request.fail("the component refused the call");
    request.set("result", variantJson(*result));
}

void event(Request& request, Program&) {
    ComponentHost* host = componentFor(request);
    if (host == nullptr) return;
    const std::optional<std::int32_t> dispid = number<std::int32_t>(request.argument(1));
    const auto events = host->component().events();
    const auto described =
        std::ranges::find_if(events, [&](const EventInfo& info) { return info.dispid == dispid; });
    if (described == events.end()) return request.fail("it has no event " + request.argument(1));
    auto arguments = componentArguments(described->arguments, request.argumentsFrom(2));
    if (!arguments) return request.fail("these are not its arguments");
    host->raiseEvent(described->dispid, arguments->values);
}

constexpr Command componentTable[] = {{"control", 2, anyNumber, control}, {"event", 2, anyNumber, event}};

}  // namespace

std::span<const Command> componentCommands() { return componentTable; }

}  // namespace drive
