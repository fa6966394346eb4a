#pragma once

#include <memory>

#include "platform/base/Object.h"

namespace platform {

class CDocument;
class CFrameWnd;

/// Connects the classes of document, frame and view, and owns the one document and the one frame.
class CSingleDocTemplate {
  public:
    CSingleDocTemplate(const CRuntimeClass& document, const CRuntimeClass& frame, const CRuntimeClass& view);
    ~CSingleDocTemplate();

    /// Makes document, frame and view, runs the view's first update and shows the frame. False when a window
    /// cannot be made.
    bool OpenNewDocument();
    CFrameWnd* GetFrame() const { return frame_.get(); }

  private:
    const CRuntimeClass& documentClass_;
    const CRuntimeClass& frameClass_;
    const CRuntimeClass& viewClass_;
    std::unique_ptr<CDocument> document_;
    std::unique_ptr<CFrameWnd> frame_;
};

}  // namespace platform
