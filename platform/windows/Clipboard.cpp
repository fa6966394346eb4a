#include "platform/windows/Clipboard.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QImage>

namespace platform {

void SetClipboardBitmap(const CBitmap& bitmap) {
    if (bitmap.loaded()) QGuiApplication::clipboard()->setImage(bitmap.image());
}

}  // namespace platform
