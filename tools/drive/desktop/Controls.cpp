#include "tools/drive/desktop/Controls.h"

#include <QApplication>
#include <algorithm>

#include "platform/components/WebPageInspector.h"
#include "platform/dialogs/Dialog.h"
#include "platform/qt/WindowTable.h"
#include "platform/windows/ComponentContainer.h"
#include "src/resources/CommandIds.h"
#include "tools/drive/desktop/Windows.h"
#include "tools/drive/script/WindowName.h"

namespace drive {

using namespace platform;

CDialog* activeDialog() {
    const HWND window = WindowTable::instance().handleOf(QApplication::activeModalWidget());
    return dynamic_cast<CDialog*>(CWnd::FromHandle(window));
}

ComponentHost* controlIn(HWND window) { return componentHostOf(window); }

WebPageInspector* browser() {
    ComponentHost* host = controlIn(findWindow(ControlName{kalyxo::IDC_WEB}));
    return host == nullptr ? nullptr : dynamic_cast<WebPageInspector*>(&host->component());
}

bool anyControlBusy() {
    return std::ranges::any_of(WindowTable::instance().all(), [](HWND window) {
        const ComponentHost* host = controlIn(window);
        return host != nullptr && host->component().busy();
    });
}

}  // namespace drive
