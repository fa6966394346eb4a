#pragma once

#include "platform/windows/Wnd.h"

namespace platform {

class CDocument;
class CFrameWnd;

/// The window inside the frame that shows the document.
class CView : public CWnd {
  public:
    const MessageMap* GetMessageMap() const override;
    /// The frame around it, null without one.
    CFrameWnd* GetParentFrame() const;
    CDocument* GetDocument() const { return m_pDocument; }

    /// Paints the whole client area.
    virtual void OnDraw(CDC& dc) = 0;
    /// Called once, before the frame is first shown.
    virtual void OnInitialUpdate() {}

    bool OnCmdMsg(UINT id, CommandMessage what, CCmdUI* ui) override;

  private:
    friend class CFrameWnd;
    void OnPaint();
    CDocument* m_pDocument = nullptr;
};

}  // namespace platform
