#pragma once

#include "platform/windows/CmdTarget.h"
#include "platform/windows/Wnd.h"

namespace platform {

class CFrameWnd;

/// The document of a single-document program.
class CDocument : public CCmdTarget {};

/// The window inside the frame, which shows the document.
class CView : public CWnd {
  public:
    const MessageMap* GetMessageMap() const override;
    /// The frame that contains the view, null if none does.
    CFrameWnd* GetParentFrame() const;

    /// Paints the whole client area.
    virtual void OnDraw(CDC& dc) = 0;
    /// Called once, before the frame is first shown.
    virtual void OnInitialUpdate() {}

    bool OnCmdMsg(UINT id, CommandMessage what, CCmdUI* ui) override;

  private:
    friend class CFrameWnd;
    void OnPaint();
    CDocument* document_ = nullptr;
};

}  // namespace platform
