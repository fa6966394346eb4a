#include <algorithm>

#include "platform/components/ComponentHost.h"
#include "tools/drive/commands/CommandTable.h"
#include "tools/drive/desktop/Controls.h"
#include "tools/drive/desktop/Windows.h"
#include "tools/drive/script/Act.h"
#include "tools/drive/script/ComponentValues.h"
#include "tools/drive/script/Numbers.h"
#include "tools/drive/script/WindowName.h"

/// Hosted components as another host would use them.
namespace drive {

using namespace platform;

namespace {

/// The component that the first argument names, with or without `#`; fails the act when there is none.
ComponentHost* componentFor(Act& act) {
    const std::string& word = act.word(0);
    const std::optional<int> id = number<int>(std::string_view(word).substr(word.starts_with('#') ? 1 : 0));
    ComponentHost* host = id ? controlIn(findWindow(ControlName{*id})) : nullptr;
    if (host == nullptr) act.fail("no component has the id " + word);
    return host;
}

/// The operation of that name: a method, or of a property the put with an argument and the get without.
const OperationInfo* operationNamed(const Component& control, std::string_view name, bool hasArguments) {
    const InvokeKind property = hasArguments ? InvokeKind::propertyPut : InvokeKind::propertyGet;
    const auto operations = control.operations();
    const auto found = std::ranges::find_if(operations, [&](const OperationInfo& operation) {
        return operation.name == name && (operation.kind == InvokeKind::method || operation.kind == property);
    });
    return found == operations.end() ? nullptr : &*found;
}

void control(Act& act, Program&) {
    ComponentHost* host = componentFor(act);
    if (host == nullptr) return;
    const OperationInfo* operation = operationNamed(host->component(), act.word(1), act.count() > 2);
    if (operation == nullptr) return act.fail("it has no operation " + act.word(1));
    const auto arguments = controlArguments(operation->arguments, act.wordsFrom(2));
    if (!arguments) return act.fail("these are not its arguments");
    act.set("result", nullptr);
    const std::optional<Variant> result = host->invoke(operation->dispid, operation->kind, arguments->values);
    if (!result) return act.fail("the component refused the call");
    act.set("result", variantJson(*result));
}

void event(Act& act, Program&) {
    ComponentHost* host = componentFor(act);
    if (host == nullptr) return;
    const std::optional<std::int32_t> dispid = number<std::int32_t>(act.word(1));
    const auto events = host->component().events();
    const auto described =
        std::ranges::find_if(events, [&](const EventInfo& info) { return info.dispid == dispid; });
    if (described == events.end()) return act.fail("it has no event " + act.word(1));
    auto arguments = controlArguments(described->arguments, act.wordsFrom(2));
    if (!arguments) return act.fail("these are not its arguments");
    host->raiseEvent(*dispid, arguments->values);
}

constexpr Command kComponentCommands[] = {{"control", 2, kAnyNumber, control},
                                          {"event", 2, kAnyNumber, event}};

}  // namespace

std::span<const Command> componentCommands() { return kComponentCommands; }

}  // namespace drive
