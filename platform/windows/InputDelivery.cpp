#include "platform/windows/InputDelivery.h"

#include "platform/input/MouseCapture.h"
#include "platform/qt/WindowTable.h"
#include "platform/windows/Cursor.h"

namespace platform {

void deliverInput(const MSG& message) {
    if (message.message == WM_MOUSEMOVE && capturingWindow() == 0) askForCursor(message.hwnd);
    WindowTable::instance().send(message.hwnd, message.message, message.wParam, message.lParam);
}

}  // namespace platform
