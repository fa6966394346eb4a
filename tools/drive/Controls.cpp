#include "tools/drive/Controls.h"

#include <QApplication>
#include <algorithm>

#include "platform/automation/WebPageInspector.h"
#include "platform/framework/Dialog.h"
#include "platform/handles/WindowTable.h"
#include "platform/windows/ControlContainer.h"
#include "src/resources/CommandIds.h"
#include "tools/drive/WindowName.h"
#include "tools/drive/Windows.h"

namespace drive {

using namespace platform;

CDialog* activeDialog() {
    const HWND window = WindowTable::instance().handleOf(QApplication::activeModalWidget());
    return dynamic_cast<CDialog*>(CWnd::FromHandle(window));
}

ControlHost* controlIn(HWND window) { return controlHostOf(window); }

WebPageInspector* browser() {
    ControlHost* host = controlIn(findWindow(ControlName{kalyxo::IDC_WEB}));
    return host == nullptr ? nullptr : dynamic_cast<WebPageInspector*>(&host->control());
}

bool anyControlBusy() {
    return std::ranges::any_of(WindowTable::instance().all(), [](HWND window) {
        const ControlHost* host = controlIn(window);
        return host != nullptr && host->control().busy();
    });
}

}  // namespace drive
