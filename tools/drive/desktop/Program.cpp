#include "tools/drive/desktop/Program.h"

#include "platform/framework/Run.h"
#include "src/app/KalyxoApp.h"
#include "src/app/MainFrame.h"
#include "src/view/KalyxoView.h"

namespace drive {

using kalyxo::CKalyxoView;
using kalyxo::CMainFrame;

void Program::start() {
    m_started = true;
    m_starting = true;
    m_application.InitInstance();
    m_starting = false;
}

bool Program::running() const { return m_starting || (m_started && frame() != nullptr); }

std::optional<int> Program::exitCode() {
    if (m_started && !running() && !m_exitCode) m_exitCode = platform::EndProgram(m_application);
    return m_exitCode;
}

CMainFrame* Program::frame() { return static_cast<CMainFrame*>(platform::CWinApp::Instance().GetMainWnd()); }

CKalyxoView* Program::view() {
    CMainFrame* const window = frame();
    return window == nullptr ? nullptr : static_cast<CKalyxoView*>(window->GetActiveView());
}

}  // namespace drive
