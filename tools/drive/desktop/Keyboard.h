#pragma once

#include <string_view>

#include "platform/base/Messages.h"
#include "tools/drive/script/KeyName.h"

namespace drive {

/// Presses and releases a key in a window; with 0, in the one that has the focus when the key arrives.
void strikeKey(KeyStroke stroke, platform::HWND window);

/// Types a text (UTF-8), key by key, into the window with the focus.
void typeText(std::string_view text);

}  // namespace drive
