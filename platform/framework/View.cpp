#include "platform/framework/View.h"

#include "platform/framework/FrameWnd.h"
#include "platform/windows/MessageMap.h"
#include "platform/windows/WindowDC.h"

namespace platform {

const MessageMap* CView::GetMessageMap() const {
    static constexpr MessageMapEntry entries[] = {OnMessage<WM_PAINT, &CView::OnPaint>()};
    static const MessageMap map{CWnd::GetMessageMap(), entries};
    return &map;
}

bool CView::OnCmdMsg(UINT id, CommandMessage what, CCmdUI* ui) {
    return CWnd::OnCmdMsg(id, what, ui) || (document_ && document_->OnCmdMsg(id, what, ui));
}

void CView::OnPaint() {
    CPaintDC dc(*this);
    OnDraw(dc);
}

CFrameWnd* CView::GetParentFrame() const {
    for (CWnd* window = GetParent(); window; window = window->GetParent()) {
        if (auto* const frame = dynamic_cast<CFrameWnd*>(window)) return frame;
    }
    return nullptr;
}

}  // namespace platform
