#pragma once

#include <Qt>
#include <functional>

#include "platform/base/Messages.h"

/// The place through which all input of the program passes, whichever widget it is for: those of hosted
/// controls and of the web engine too.
namespace platform {

/// Who looks at input before it is delivered.
struct InputHooks {
    /// Sees each mouse and key message once; true swallows it.
    std::function<bool(const MSG&)> preTranslate;
    /// Whether preTranslate may want this key (virtual key number) of a window; then Qt's own shortcuts do
    /// not get it first.
    std::function<bool(HWND window, UINT key)> claimsKey;
};

/// Sets the hooks; empty ones take them away.
void setInputHooks(InputHooks hooks);

/// Starts to look at the events of the current QApplication, once.
void installMessageFilter();

/// The modifier keys of the input message that is being looked at or delivered.
Qt::KeyboardModifiers inputModifiers();

}  // namespace platform
