#include "src/view/EditCommands.h"

#include "platform/input/KeyboardFocus.h"
#include "src/state/ProgramState.h"

namespace kalyxo {

using namespace platform;

namespace {

/// False when the keyboard's focus is elsewhere.
bool sendToSelectEdit(UINT message) {
    if (!FocusIsInSelectEdit()) return false;
    platform::SendMessage(TheApp().m_hwndSelectEdit, message);
    return true;
}

}  // namespace

bool FocusIsInSelectEdit() { return GetFocus() != 0 && GetFocus() == TheApp().m_hwndSelectEdit; }

void EditCommands::Cut() { sendToSelectEdit(WM_CUT); }

void EditCommands::Paste() { sendToSelectEdit(WM_PASTE); }

void EditCommands::CopyToClipboard() {
    if (!sendToSelectEdit(WM_COPY)) execInDocument(CWebBrowser::kCommandCopy);
}

void EditCommands::Print() {
    if (m_panes.Mode() == ContentMode::DataAnalyser) {
        m_components.dataAnalyser.PrintView();
    } else {
        execInDocument(CWebBrowser::kCommandPrint);
    }
}

void EditCommands::execInDocument(std::int32_t command) {
    const std::shared_ptr<Dispatch> document = m_components.browser.Document();
    if (document) document->exec(command);
}

}  // namespace kalyxo
