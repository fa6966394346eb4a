#include <QAccessible>
#include <QApplication>
#include <QMetaEnum>
#include <QWidget>

#include "tools/drive/commands/CommandTable.h"
#include "tools/drive/script/Request.h"

/// What screen readers are told about the window in front.
namespace drive {

namespace {

const char* roleName(QAccessible::Role role) {
    const char* name = QMetaEnum::fromType<QAccessible::Role>().valueToKey(role);
    return name == nullptr ? "?" : name;
}

/// Adds the parts that take the focus or can be pushed.
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
    // The parts of a page are the browser engine's matter.
    if (part.role() == QAccessible::WebDocument) return;
    for (int i = 0; i < part.childCount(); ++i) {
        if (QAccessibleInterface* child = part.child(i)) list(*child, parts);
    }
}

void tellAccessible(Request& request) {
    QWidget* window = QApplication::activeModalWidget();
    if (window == nullptr) window = QApplication::activeWindow();
    QAccessibleInterface* root = window == nullptr ? nullptr : QAccessible::queryAccessibleInterface(window);
    if (root == nullptr) return request.fail("there is no window");
    Json parts = Json::array();
    list(*root, parts);
    request.set("parts", std::move(parts));
}

void accessible(Request& request, Program&) { request.whenIdle(tellAccessible); }

constexpr Command accessibleTable[] = {{"accessible", 0, 0, accessible}};

}  // namespace

std::span<const Command> accessibleCommands() { return accessibleTable; }

}  // namespace drive
