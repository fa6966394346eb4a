#include "platform/drawing/ProgramFont.h"

namespace platform {

QFont programFont(int pixels) {
    QFont font(QStringLiteral("Liberation Sans"));
    font.setPixelSize(pixels);
    return font;
}

}  // namespace platform
