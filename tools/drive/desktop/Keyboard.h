#pragma once

#include <string_view>

#include "platform/base/Messages.h"
#include "tools/drive/script/KeyName.h"

namespace drive {

/// Presses and releases a key in the window that has the focus by then, or in the given one (not 0).
void strikeKey(KeyStroke stroke, platform::HWND window);

/// Types a text (UTF-8) into the focus window, key by key.
void typeText(std::string_view text);

}  // namespace drive
