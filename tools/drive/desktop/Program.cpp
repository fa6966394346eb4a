#include "tools/drive/desktop/Program.h"

#include "platform/framework/Run.h"
#include "src/app/KalyxoApp.h"
#include "src/app/MainFrame.h"
#include "src/view/KalyxoView.h"

namespace drive {

using kalyxo::CKalyxoView;
using kalyxo::CMainFrame;

void Program::start() {
    started_ = true;
    starting_ = true;
    application_.InitInstance();
    starting_ = false;
}

bool Program::running() const { return starting_ || (started_ && frame() != nullptr); }

std::optional<int> Program::exitCode() {
    if (started_ && !running() && !exitCode_) exitCode_ = platform::EndProgram(application_);
    return exitCode_;
}

CMainFrame* Program::frame() { return static_cast<CMainFrame*>(platform::CWinApp::Instance().GetMainWnd()); }

CKalyxoView* Program::view() {
    CMainFrame* const window = frame();
    return window == nullptr ? nullptr : static_cast<CKalyxoView*>(window->GetActiveView());
}

}  // namespace drive
