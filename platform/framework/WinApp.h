#pragma once

#include <memory>
#include <string>
#include <string_view>

#include "platform/framework/SingleDocTemplate.h"
#include "platform/windows/CmdTarget.h"

namespace platform {

class CFrameWnd;

/// The application object; a program has exactly one.
class CWinApp : public CCmdTarget {
  public:
    CWinApp();
    ~CWinApp() override;
    static CWinApp& instance();

    /// The start-up sequence; false ends the program before a window is shown.
    virtual bool InitInstance() = 0;
    virtual int ExitInstance() { return 0; }
    /// Looks at an input message before it is delivered; true swallows it. The default carries out
    /// accelerators, and ends a dialog by Escape from within a hosted control; a key whose command is
    /// disabled or has no handler goes on to its window.
    virtual bool PreTranslateMessage(const MSG& message);

    void AddDocTemplate(std::unique_ptr<CSingleDocTemplate> documentTemplate);
    /// Opens the new, empty document of the one template; false, and the user is told, when that fails.
    bool ProcessShellCommand();
    /// The main frame, null before its window is made and after it is gone.
    CFrameWnd* GetMainWnd() const;

    /// How the main frame is first shown (SW_…).
    int m_nCmdShow = 1;

  private:
    friend int EndProgram(CWinApp& app);
    std::unique_ptr<CSingleDocTemplate> m_template;
};

/// Readies automation for hosting controls; false when the machine cannot.
bool AfxOleInit();

}  // namespace platform
