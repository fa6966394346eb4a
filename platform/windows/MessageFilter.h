#pragma once

#include <Qt>
#include <functional>

#include "platform/base/Messages.h"

class QWidget;

/// All input of the program passes through here, whichever widget it is for, even widgets of hosted
/// components and of the web engine.
namespace platform {

/// Functions that see input before it is delivered.
struct InputHooks {
    /// Called once for each mouse and key message; true swallows it.
    std::function<bool(const MSG&)> preTranslate;
    /// Whether preTranslate may want a key (virtual key number) of a window. Qt's own shortcuts then do not
    /// get it first.
    std::function<bool(HWND window, UINT key)> claimsKey;
};

/// Sets the hooks; empty ones remove them.
void setInputHooks(InputHooks hooks);

/// Starts to watch the events of the current QApplication. Later calls do nothing.
void installMessageFilter();

/// Whether a modal dialog keeps input from a widget.
bool isBlockedByDialog(const QWidget& widget);

/// The modifier keys of the input message that is being handled.
Qt::KeyboardModifiers inputModifiers();

}  // namespace platform
