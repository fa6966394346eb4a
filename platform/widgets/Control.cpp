#include "platform/widgets/Control.h"

#include "platform/windows/ControlLink.h"

namespace platform {

void CControl::Default() {
    if (ControlLink* const link = ControlLink::of(GetSafeHwnd())) link->leaveToControl();
}

LRESULT CControl::DefWindowProc(UINT, WPARAM, LPARAM) {
    Default();
    return 0;
}

}  // namespace platform
