#pragma once

#include <memory>

#include "platform/base/Object.h"

namespace platform {

class CDocument;
class CFrameWnd;

/// Joins the classes of document, frame and view, and owns the one document and frame.
class CSingleDocTemplate {
  public:
    CSingleDocTemplate(const CRuntimeClass& document, const CRuntimeClass& frame, const CRuntimeClass& view);
    ~CSingleDocTemplate();

    /// Makes document, frame and view, runs the first update and shows the frame; false when a window
    /// cannot be made.
    bool OpenNewDocument();
    CFrameWnd* GetFrame() const { return m_frame.get(); }
    CDocument* GetDocument() const { return m_document.get(); }

  private:
    const CRuntimeClass& m_documentClass;
    const CRuntimeClass& m_frameClass;
    const CRuntimeClass& m_viewClass;
    std::unique_ptr<CDocument> m_document;
    std::unique_ptr<CFrameWnd> m_frame;
};

}  // namespace platform
