#pragma once

#include <optional>
#include <string>
#include <vector>

#include "platform/base/Messages.h"
#include "tools/drive/script/Json.h"
#include "tools/drive/script/WindowName.h"

class QWidget;

namespace drive {

/// The window that a script means by WINDOW, 0 when it does not exist now.
platform::HWND findWindow(const WindowName& name);

/// The same for a word of a script, or for the view when there is none; the error when there is no such
/// window.
struct WindowChoice {
    platform::HWND window = 0;
    std::string error;
};
WindowChoice chooseWindow(const std::string* word);

/// The widget of a window that exists.
QWidget& widgetOf(platform::HWND window);
/// A point of a window's client area on the screen.
platform::CPoint clientToScreen(platform::HWND window, platform::CPoint p);
/// Outer rectangle on the screen.
platform::CRect outerRect(platform::HWND window);

/// All windows, each with those inside it, as the answer of `windows` lists them.
Json windowTree();

}  // namespace drive
