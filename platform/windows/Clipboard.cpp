#include "platform/windows/Clipboard.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QImage>

namespace platform {

void SetClipboardBitmap(const CBitmap& bitmap) {
    if (bitmap.Loaded()) QGuiApplication::clipboard()->setImage(bitmap.Image());
}

}  // namespace platform
