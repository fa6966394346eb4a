#include "platform/drawing/LightPalette.h"

#include <QApplication>
#include <QToolTip>

namespace platform {

QPalette lightPalette() {
    const QColor background(0xF4, 0xF7, 0xF9);
    const QColor text(0x1C, 0x27, 0x33);
    const QColor faint(0x8A, 0x97, 0xA3);
    const QColor link(0x1F, 0x5F, 0x86);
    const QColor highlight(0xD3, 0xE5, 0xF0);
    QPalette palette(text, background, Qt::white, QColor(0xB4, 0xC0, 0xCA), QColor(0xD8, 0xE0, 0xE6), text,
                     text, Qt::white, background);
    palette.setColor(QPalette::Highlight, highlight);
    palette.setColor(QPalette::HighlightedText, text);
    palette.setColor(QPalette::PlaceholderText, faint);
    palette.setColor(QPalette::Link, link);
    palette.setColor(QPalette::LinkVisited, link);
    palette.setColor(QPalette::ToolTipBase, Qt::white);
    palette.setColor(QPalette::ToolTipText, text);
    palette.setColor(QPalette::AlternateBase, background);
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
        palette.setColor(QPalette::Disabled, role, faint);
    }
    // A disabled field has the colour of the window around it.
    palette.setColor(QPalette::Disabled, QPalette::Base, background);
    return palette;
}

void applyLightPalette() {
    QApplication::setPalette(lightPalette());
    QToolTip::setPalette(lightPalette());
}

}  // namespace platform
