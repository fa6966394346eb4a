#include "controls/select/Appearance.h"

#include <array>

namespace controls::select::appearance {

namespace {

constexpr int fontPixels = 13;

// In the order of the section codes, from 1.
constexpr std::array<QColor, 7> accents = {
    QColor(0xB5, 0x4A, 0x12), QColor(0x24, 0x60, 0xA7), QColor(0x2B, 0x75, 0x49), QColor(0x81, 0x39, 0x8A),
    QColor(0x85, 0x5A, 0x0C), QColor(0x0C, 0x72, 0x7B), QColor(0xAB, 0x35, 0x57)};

constexpr const char* rules = R"(
#selectPane { background: @paper; }
#sectionName { background: @paper; padding: 10px 8px 7px 8px; font-size: 15px; font-weight: bold; }
#emptyNote { background: @paper; color: @muted; padding: 14px 8px; }
#filterField { background: @paper; color: @text; border: 1px solid @frame; border-radius: 5px;
               padding: 4px 3px 4px 4px; selection-background-color: @accent; selection-color: @paper; }
#filterField:hover { border-color: @accent; }
#filterField:focus { border: 2px solid @accent; padding: 3px 2px 3px 3px; }
#topicView { background: @paper; border: none; outline: none; }
QScrollBar:vertical { background: @paper; width: 9px; margin: 0; border: none; }
QScrollBar::handle:vertical { background: @handle; min-height: 28px; border-radius: 3px; margin: 1px 2px; }
QScrollBar::handle:vertical:hover { background: @accent; }
QScrollBar::add-line:vertical, QScrollBar::sub-line:vertical { height: 0; border: none; }
QScrollBar::add-page:vertical, QScrollBar::sub-page:vertical { background: @paper; }
QToolTip { background: @deep; color: @paper; border: 1px solid @deep; padding: 4px;
           font-family: "Liberation Sans"; font-size: 13px; }
)";

}  // namespace

QColor sectionAccent(std::int16_t code) {
    if (code < 1 || static_cast<std::size_t>(code) > accents.size()) return accent;
    return accents[static_cast<std::size_t>(code) - 1];
}

QFont font(QFont::Weight weight) { return controls::appearance::font(fontPixels, weight); }

QPalette palette() {
    QPalette palette(text, paper, paper, selected, muted, text, paper);
    palette.setColor(QPalette::Base, paper);
    palette.setColor(QPalette::PlaceholderText, muted);
    palette.setColor(QPalette::Highlight, accent);
    palette.setColor(QPalette::HighlightedText, paper);
    palette.setColor(QPalette::ToolTipBase, deep);
    palette.setColor(QPalette::ToolTipText, paper);
    return palette;
}

QString styleSheet() { return controls::appearance::withColors(rules); }

}  // namespace controls::select::appearance
