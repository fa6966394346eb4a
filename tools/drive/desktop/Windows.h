#pragma once

#include <optional>
#include <string>
#include <vector>

#include "platform/base/Messages.h"
#include "platform/base/Result.h"
#include "tools/drive/script/Json.h"
#include "tools/drive/script/WindowName.h"

class QWidget;

namespace platform {
class CDialog;
}

namespace drive {

/// The window of this name, 0 when it does not exist now.
platform::HWND findWindow(const WindowName& name);

/// The window that a word of a script names; the view when `word` is null. Fails when there is none.
platform::Result<platform::HWND> chooseWindow(const std::string* word);

/// The dialog that waits for the user, null when there is none.
platform::CDialog* activeDialog();

/// The widget of a window that exists.
QWidget& widgetOf(platform::HWND window);
/// A point of a window's client area on the screen.
platform::CPoint clientToScreen(platform::HWND window, platform::CPoint p);
/// A window's outer rectangle on the screen.
platform::CRect outerRect(platform::HWND window);

/// The answer of `windows`: all windows, each with its children.
Json windowTree();

}  // namespace drive
