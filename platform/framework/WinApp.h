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
    static CWinApp& Instance();

    /// The start-up; false ends the program before a window is shown.
    virtual bool InitInstance() = 0;
    virtual int ExitInstance() { return 0; }
    /// Called for each input message before it is delivered; true swallows it. The default carries out
    /// accelerators, in the frame and in modeless windows as long as no dialog waits, and has Escape end a
    /// dialog when a component in it has the focus. A key whose command is disabled or has no handler goes to
    /// its window.
    virtual bool PreTranslateMessage(const MSG& message);

    void AddDocTemplate(std::unique_ptr<CSingleDocTemplate> documentTemplate);
    /// Makes the new, empty document of the one template. False when that fails; the user has then been told.
    bool ProcessShellCommand();
    /// The main frame; null before its window is made and after that is gone.
    CFrameWnd* GetMainWnd() const;

    /// How the main frame is first shown (SW_…).
    int m_nCmdShow = 1;

  private:
    friend int EndProgram(CWinApp& app);
    std::unique_ptr<CSingleDocTemplate> template_;
};

/// Prepares automation for hosting components; false when the machine does not have it.
bool AfxOleInit();

}  // namespace platform
