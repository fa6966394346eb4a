#include <QAccessible>
#include <QApplication>
#include <QMetaEnum>
#include <QWidget>

#include "tools/drive/commands/CommandTable.h"
#include "tools/drive/script/Act.h"

/// What screen readers are told of the window in front.
namespace drive {

namespace {

const char* roleName(QAccessible::Role role) {
    const char* name = QMetaEnum::fromType<QAccessible::Role>().valueToKey(role);
    return name == nullptr ? "?" : name;
}

/// Lists the parts that the user can do something with.
void list(QAccessibleInterface& part, Json& parts) {
    const QAccessible::State state = part.state();
    if (state.invisible) return;
    const bool pushed = part.role() == QAccessible::Button || part.role() == QAccessible::CheckBox ||
                        part.role() == QAccessible::RadioButton;
    if ((state.focusable || pushed) && !state.disabled) {
        parts.push_back({{"role", roleName(part.role())},
                         {"name", part.text(QAccessible::Name).toStdString()},
                         {"focusable", bool(state.focusable)}});
        if (state.focused) parts.back()["focused"] = true;
    }
    // Of a page the engine tells itself.
    if (part.role() == QAccessible::WebDocument) return;
    for (int i = 0; i < part.childCount(); ++i) {
        if (QAccessibleInterface* child = part.child(i)) list(*child, parts);
    }
}

void tellAccessible(Act& act) {
    QWidget* window = QApplication::activeModalWidget();
    if (window == nullptr) window = QApplication::activeWindow();
    QAccessibleInterface* root = window == nullptr ? nullptr : QAccessible::queryAccessibleInterface(window);
    if (root == nullptr) return act.fail("there is no window");
    Json parts = Json::array();
    list(*root, parts);
    act.set("parts", std::move(parts));
}

void accessible(Act& act, Program&) { act.whenIdle(tellAccessible); }

constexpr Command kAccessibleCommands[] = {{"accessible", 0, 0, accessible}};

}  // namespace

std::span<const Command> accessibleCommands() { return kAccessibleCommands; }

}  // namespace drive
