#include "platform/framework/SingleDocTemplate.h"

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
    : documentClass_(document), frameClass_(frame), viewClass_(view) {}

CSingleDocTemplate::~CSingleDocTemplate() = default;

bool CSingleDocTemplate::OpenNewDocument() {
    if (frame_) return false;
    document_ = make<CDocument>(documentClass_);
    frame_ = make<CFrameWnd>(frameClass_);
    if (!document_ || !frame_ || !frame_->LoadFrame(viewClass_, *document_)) return false;
    frame_->InitialUpdateFrame();
    return true;
}

}  // namespace platform
