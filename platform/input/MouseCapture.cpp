#include "platform/input/MouseCapture.h"

#include "platform/qt/WindowTable.h"

namespace platform {

namespace {

HWND capturing = 0;

}  // namespace

HWND capturingWindow() { return WindowTable::instance().find(capturing) ? capturing : 0; }

void captureMouse(HWND window) { capturing = window; }

void releaseMouse() { capturing = 0; }

}  // namespace platform
