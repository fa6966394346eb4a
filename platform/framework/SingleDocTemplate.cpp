#include "platform/framework/SingleDocTemplate.h"

#include "platform/framework/Document.h"
#include "platform/framework/FrameWnd.h"
#include "platform/framework/View.h"

namespace platform {

namespace {

template <class T>
std::unique_ptr<T> make(const CRuntimeClass& runtimeClass) {
    std::unique_ptr<CObject> object = runtimeClass.create ? runtimeClass.create() : nullptr;
    if (!dynamic_cast<T*>(object.get())) return nullptr;
    return std::unique_ptr<T>(static_cast<T*>(object.release()));
}

}  // namespace

CSingleDocTemplate::CSingleDocTemplate(const CRuntimeClass& document, const CRuntimeClass& frame,
                                       const CRuntimeClass& view)
    : m_documentClass(document), m_frameClass(frame), m_viewClass(view) {}

CSingleDocTemplate::~CSingleDocTemplate() = default;

bool CSingleDocTemplate::OpenNewDocument() {
    if (m_frame) return false;
    m_document = make<CDocument>(m_documentClass);
    m_frame = make<CFrameWnd>(m_frameClass);
    if (!m_document || !m_frame || !m_frame->LoadFrame(m_viewClass, *m_document)) return false;
    m_frame->InitialUpdateFrame();
    return true;
}

}  // namespace platform
