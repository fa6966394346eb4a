#include <QWidget>

#include "platform/dialogs/Dialog.h"
#include "platform/dialogs/DialogControls.h"
#include "platform/input/KeyboardFocus.h"
#include "platform/qt/WindowTable.h"
#include "platform/windows/ControlText.h"
#include "src/view/KalyxoView.h"
#include "tools/drive/commands/CommandTable.h"
#include "tools/drive/desktop/ControlItems.h"
#include "tools/drive/desktop/Controls.h"
#include "tools/drive/desktop/Program.h"
#include "tools/drive/desktop/Windows.h"
#include "tools/drive/script/Act.h"

/// Dialogs and the glossary pop-up.
namespace drive {

using namespace platform;

namespace {

/// The active dialog; fails the act when there is none.
CDialog* dialogFor(Act& act) {
    CDialog* dialog = activeDialog();
    if (dialog == nullptr) act.fail("no dialog is open");
    return dialog;
}

Json controlJson(HWND window) {
    QWidget& control = widgetOf(window);
    Json description = {{"id", WindowTable::instance().find(window)->id},
                        {"kind", kindOf(control)},
                        {"text", text(controlText(control))},
                        {"enabled", control.isEnabled()},
                        {"visible", control.isVisible()},
                        {"rect", rectangle(outerRect(window))}};
    describeItems(control, description);
    return description;
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

void tellTip(Act& act) {
    const kalyxo::CKalyxoView* view = Program::view();
    const kalyxo::GlossaryPopup* box = view == nullptr ? nullptr : &view->Inspection().glossary;
    const bool visible = box != nullptr && box->IsVisible();
    act.set("visible", visible);
    act.set("text", visible ? text(box->Text()) : Json(""));
    act.set("rect", rectangle(visible ? box->Place() : CRect()));
}

void tip(Act& act, Program&) { act.whenIdle(tellTip); }

constexpr Command kDialogCommands[] = {
    {"dialog", 0, 0, dialog},
    {"tip", 0, 0, tip},
};

}  // namespace

std::span<const Command> dialogCommands() { return kDialogCommands; }

}  // namespace drive
