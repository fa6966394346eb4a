#include <QAbstractButton>
#include <QLabel>
#include <QWidget>

#include "platform/framework/Dialog.h"
#include "platform/framework/DialogControls.h"
#include "platform/handles/WindowTable.h"
#include "tools/drive/Act.h"
#include "tools/drive/CommandTable.h"
#include "tools/drive/Controls.h"
#include "tools/drive/Numbers.h"
#include "tools/drive/Windows.h"

/// Dialogs and the glossary pop-up, which the program does not show yet.
namespace drive {

using namespace platform;

namespace {

/// The active dialog; fails the act when there is none.
CDialog* dialogFor(Act& act) {
    CDialog* dialog = activeDialog();
    if (dialog == nullptr) act.fail("no dialog is open");
    return dialog;
}

/// The control of the active dialog that the act's first argument names; fails the act when there is none or
/// it does not take anything now.
QWidget* controlFor(Act& act) {
    const CDialog* dialog = dialogFor(act);
    if (dialog == nullptr) return nullptr;
    const std::optional<int> id = number<int>(act.word(0));
    QWidget* control = id ? dialogControl(dialog->GetSafeHwnd(), *id) : nullptr;
    if (control == nullptr) {
        act.fail("the dialog has no control " + act.word(0));
    } else if (!control->isEnabled() || !control->isVisible()) {
        act.fail("control " + act.word(0) + " is hidden or disabled");
        return nullptr;
    }
    return control;
}

const char* kindOf(const QWidget& control) {
    if (qobject_cast<const QAbstractButton*>(&control) != nullptr) return "button";
    const auto* label = qobject_cast<const QLabel*>(&control);
    return label != nullptr && !label->pixmap(Qt::ReturnByValue).isNull() ? "bitmap" : "static";
}

Json controlJson(HWND window) {
    const QWidget& control = widgetOf(window);
    return {{"id", WindowTable::instance().find(window)->id},
            {"kind", kindOf(control)},
            {"text", text(controlText(control))},
            {"enabled", control.isEnabled()},
            {"visible", control.isVisible()},
            {"rect", rectangle(outerRect(window))}};
}

void tellDialog(Act& act) {
    const CDialog* open = dialogFor(act);
    if (open == nullptr) return;
    const WindowEntry* focus = WindowTable::instance().find(GetFocus());
    Json controls = Json::array();
    for (const HWND control : dialogControls(open->GetSafeHwnd())) controls.push_back(controlJson(control));
    act.set("handle", open->GetSafeHwnd());
    act.set("class", text(open->GetRuntimeClass().name));
    act.set("template", open->GetTemplateId());
    act.set("caption", text(open->GetWindowText()));
    act.set("rect", rectangle(open->GetWindowRect()));
    act.set("focus", focus == nullptr ? 0 : focus->id);
    act.set("controls", std::move(controls));
}

void dialog(Act& act, Program&) { act.whenIdle(tellDialog); }

void press(Act& act, Program&) {
    QWidget* control = controlFor(act);
    if (control == nullptr) return;
    auto* button = qobject_cast<QAbstractButton*>(control);
    if (button == nullptr) return act.fail("control " + act.word(0) + " is no button");
    button->setFocus(Qt::MouseFocusReason);
    button->click();
}

/// For what no control of the program's dialogs can do.
void refuse(Act& act, Program&) {
    if (controlFor(act) != nullptr) act.fail("control " + act.word(0) + " cannot do that");
}

void tip(Act& act, Program&) {
    act.set("visible", false);
    act.set("text", "");
    act.set("rect", rectangle({}));
}

constexpr Command kCommands[] = {
    {"dialog", 0, 0, dialog},   {"set", 2, 2, refuse},    {"pick", 2, 2, refuse},
    {"activate", 2, 2, refuse}, {"expand", 2, 2, refuse}, {"drag", 3, 3, refuse},
    {"press", 1, 1, press},     {"header", 2, 2, refuse}, {"tip", 0, 0, tip},
};

}  // namespace

std::span<const Command> dialogCommands() { return kCommands; }

}  // namespace drive
