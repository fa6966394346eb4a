#include "platform/framework/WinApp.h"

#include <cstdlib>

#include "platform/dialogs/Dialog.h"
#include "platform/dialogs/MessageBox.h"
#include "platform/framework/AcceleratorTable.h"
#include "platform/framework/Document.h"
#include "platform/framework/FrameWnd.h"
#include "platform/framework/View.h"
#include "platform/machine/Machine.h"
#include "platform/qt/WindowTable.h"
#include "platform/text/GreekLiteral.h"
#include "platform/windows/ComponentContainer.h"
#include "platform/windows/MessageFilter.h"
#include "platform/windows/WindowWidget.h"

namespace platform {

using namespace literals;

namespace {

CWinApp* application = nullptr;

/// The command that a key stands for; dialogs have no accelerators.
std::optional<UINT> acceleratorCommand(const CFrameWnd* frame, HWND window, UINT key) {
    const QWidget* const widget = WindowTable::instance().widget(window);
    if (!frame || !widget || widget->window() != WindowWidget::of(*frame)) return std::nullopt;
    return AcceleratorTable(Resources().accelerators).find(key, inputModifiers());
}

/// The dialog around a hosted control, which would keep the key that ends dialogs; null for other windows.
CWnd* dialogAroundControl(HWND window) {
    CWnd* const control = componentHostOf(window) ? CWnd::FromHandle(window) : nullptr;
    return control ? dynamic_cast<CDialog*>(control->GetParent()) : nullptr;
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
    m_template.reset();
    setInputHooks({});
    application = nullptr;
}

CWinApp& CWinApp::instance() {
    if (!application) std::abort();
    return *application;
}

bool CWinApp::PreTranslateMessage(const MSG& message) {
    if (message.message != WM_KEYDOWN) return false;
    CWnd* const dialog = message.wParam == VK_ESCAPE ? dialogAroundControl(message.hwnd) : nullptr;
    if (dialog) {
        dialog->SendMessage(WM_COMMAND, IDCANCEL);
        return true;
    }
    CFrameWnd* const frame = GetMainWnd();
    const auto command = acceleratorCommand(frame, message.hwnd, static_cast<UINT>(message.wParam));
    return command && frame->RunCommand(*command);
}

void CWinApp::AddDocTemplate(std::unique_ptr<CSingleDocTemplate> documentTemplate) {
    m_template = std::move(documentTemplate);
}

bool CWinApp::ProcessShellCommand() {
    if (m_template && m_template->OpenNewDocument()) return true;
    AfxMessageBox("Δεν είναι δυνατή η δημιουργία νέου εγγράφου."_gr);
    return false;
}

CFrameWnd* CWinApp::GetMainWnd() const {
    CFrameWnd* const frame = m_template ? m_template->GetFrame() : nullptr;
    return frame && frame->GetSafeHwnd() != 0 ? frame : nullptr;
}

bool AfxOleInit() { return machine().config().automation; }

}  // namespace platform
