#pragma once

#include "platform/drawing/DC.h"

namespace platform {

/// Empties the clipboard and puts the bitmap on it; nothing happens when it is not loaded.
void SetClipboardBitmap(const CBitmap& bitmap);

}  // namespace platform
