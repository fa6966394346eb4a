#include <QWidget>

#include "platform/dialogs/Dialog.h"
#include "platform/dialogs/DialogControls.h"
#include "platform/input/KeyboardFocus.h"
#include "platform/qt/WindowTable.h"
#include "platform/windows/ControlText.h"
#include "src/view/KalyxoView.h"
#include "tools/drive/commands/CommandTable.h"
#include "tools/drive/desktop/ControlItems.h"

#include "tools/drive/desktop/Program.h"
#include "tools/drive/desktop/Windows.h"
#include "tools/drive/script/Request.h"

/// Dialogs and the glossary pop-up.
namespace drive {

using namespace platform;

namespace {

/// The active dialog. The request fails when there is none.
CDialog* dialogFor(Request& request) {
    CDialog* dialog = activeDialog();
    if (dialog == nullptr) request.fail("no dialog is open");
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

void tellDialog(Request& request) {
    const CDialog* open = dialogFor(request);
    if (open == nullptr) return;
    const WindowEntry* focus = WindowTable::instance().find(GetFocus());
    Json controls = Json::array();
    for (const HWND control : dialogControls(open->GetSafeHwnd())) controls.push_back(controlJson(control));
    request.set("handle", open->GetSafeHwnd());
    request.set("class", text(open->GetRuntimeClass().name));
    request.set("template", open->GetTemplateId());
    request.set("caption", text(open->GetWindowText()));
    request.set("rect", rectangle(open->GetWindowRect()));
    request.set("focus", focus == nullptr ? 0 : focus->id);
    request.set("controls", std::move(controls));
}

void dialog(Request& request, Program&) { request.whenIdle(tellDialog); }

void tellTip(Request& request) {
    const kalyxo::CKalyxoView* view = Program::view();
    const kalyxo::GlossaryPopup* box = view == nullptr ? nullptr : &view->Inspection().glossary;
    const bool visible = box != nullptr && box->IsVisible();
    request.set("visible", visible);
    request.set("text", visible ? text(box->Text()) : Json(""));
    request.set("rect", rectangle(visible ? box->Place() : CRect()));
}

void tip(Request& request, Program&) { request.whenIdle(tellTip); }

constexpr Command dialogTable[] = {
    {"dialog", 0, 0, dialog},
    {"tip", 0, 0, tip},
};

}  // namespace

std::span<const Command> dialogCommands() { return dialogTable; }

}  // namespace drive
