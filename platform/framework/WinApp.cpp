#include "platform/framework/WinApp.h"

#include <QApplication>
#include <cstdlib>

#include "platform/dialogs/Dialog.h"
#include "platform/dialogs/MessageBox.h"
#include "platform/framework/AcceleratorTable.h"
#include "platform/framework/FrameWnd.h"
#include "platform/framework/View.h"
#include "platform/machine/Machine.h"
#include "platform/qt/WindowTable.h"
#include "platform/text/GreekLiteral.h"
#include "platform/windows/ComponentContainer.h"
#include "platform/windows/MessageFilter.h"

namespace platform {

using namespace literals;

namespace {

CWinApp* application = nullptr;

/// The command of a key in the frame or a modeless window; while a modal one is open there is none.
std::optional<UINT> acceleratorCommand(const CFrameWnd* frame, HWND window, UINT key) {
    if (!frame || !WindowTable::instance().find(window) || QApplication::activeModalWidget()) {
        return std::nullopt;
    }
    return AcceleratorTable(Resources().accelerators).find(key, inputModifiers());
}

/// The dialog that contains a hosted component, which would keep Escape for itself; null for other windows.
CWnd* dialogOfComponent(HWND window) {
    CWnd* const component = componentHostOf(window) ? CWnd::FromHandle(window) : nullptr;
    return component ? dynamic_cast<CDialog*>(component->GetParent()) : nullptr;
}

}  // namespace

CWinApp::CWinApp() {
    application = this;
    setInputHooks({
        .preTranslate = [this](const MSG& message) { return PreTranslateMessage(message); },
        .claimsKey = [this](HWND window,
                            UINT key) { return acceleratorCommand(GetMainWnd(), window, key).has_value(); },
    });
}

CWinApp::~CWinApp() {
    template_.reset();
    setInputHooks({});
    application = nullptr;
}

CWinApp& CWinApp::Instance() {
    if (!application) std::abort();
    return *application;
}

bool CWinApp::PreTranslateMessage(const MSG& message) {
    if (message.message != WM_KEYDOWN) return false;
    CWnd* const dialog = message.wParam == VK_ESCAPE ? dialogOfComponent(message.hwnd) : nullptr;
    if (dialog) {
        dialog->SendMessage(WM_COMMAND, IDCANCEL);
        return true;
    }
    CFrameWnd* const frame = GetMainWnd();
    const auto command = acceleratorCommand(frame, message.hwnd, static_cast<UINT>(message.wParam));
    return command && frame->RunCommand(*command);
}

void CWinApp::AddDocTemplate(std::unique_ptr<CSingleDocTemplate> documentTemplate) {
    template_ = std::move(documentTemplate);
}

bool CWinApp::ProcessShellCommand() {
    if (template_ && template_->OpenNewDocument()) return true;
    AfxMessageBox("Δεν είναι δυνατή η δημιουργία νέου εγγράφου."_gr);
    return false;
}

CFrameWnd* CWinApp::GetMainWnd() const {
    CFrameWnd* const frame = template_ ? template_->GetFrame() : nullptr;
    return frame && frame->GetSafeHwnd() != 0 ? frame : nullptr;
}

bool AfxOleInit() { return machine().config().automation; }

}  // namespace platform
