#pragma once

#include "platform/drawing/Bitmap.h"

namespace platform {

/// Replaces the content of the clipboard by the bitmap; does nothing if the bitmap is not loaded.
void SetClipboardBitmap(const CBitmap& bitmap);

}  // namespace platform
