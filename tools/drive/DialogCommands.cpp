#include "tools/drive/Act.h"
#include "tools/drive/CommandTable.h"

/// Dialogs and the glossary pop-up. The program shows neither yet.
namespace drive {

namespace {

void needDialog(Act& act, Program&) { act.fail("no dialog is open"); }

void tip(Act& act, Program&) {
    act.set("visible", false);
    act.set("text", "");
    act.set("rect", rectangle({}));
}

constexpr Command kCommands[] = {
    {"dialog", 0, 0, needDialog},   {"set", 2, 2, needDialog},    {"pick", 2, 2, needDialog},
    {"activate", 2, 2, needDialog}, {"expand", 2, 2, needDialog}, {"drag", 3, 3, needDialog},
    {"press", 1, 1, needDialog},    {"header", 2, 2, needDialog}, {"tip", 0, 0, tip},
};

}  // namespace

std::span<const Command> dialogCommands() { return kCommands; }

}  // namespace drive
