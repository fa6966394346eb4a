#include "tools/drive/desktop/Components.h"

#include <algorithm>

#include "platform/components/WebPageInspector.h"
#include "platform/qt/WindowTable.h"
#include "platform/windows/ComponentContainer.h"
#include "src/resources/CommandIds.h"
#include "tools/drive/desktop/Windows.h"
#include "tools/drive/script/WindowName.h"

namespace drive {

using namespace platform;

WebPageInspector* browser() {
    ComponentHost* host = componentHostOf(findWindow(IdName{kalyxo::IDC_WEB}));
    return host == nullptr ? nullptr : dynamic_cast<WebPageInspector*>(&host->component());
}

bool anyComponentBusy() {
    return std::ranges::any_of(WindowTable::instance().all(), [](HWND window) {
        const ComponentHost* host = componentHostOf(window);
        return host != nullptr && host->component().busy();
    });
}

}  // namespace drive
