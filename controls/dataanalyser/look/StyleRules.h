#pragma once

namespace controls::dataanalyser {

/// The style sheet of the analyser, for `appearance::withColors`.
inline constexpr const char* styleRules = R"(
QLabel, QPushButton, QComboBox, QMenu { font-family: "Liberation Sans"; font-size: 12px; }
#strip { background: @ground; }
#strip QLabel { background: transparent; color: @text; }
#strip QLabel:disabled { color: @disabled; }
#strip QLabel#title { color: @deep; font-size: 15px; font-weight: bold; }
#strip QLabel#count { color: @muted; }
QLabel#nograph { background: @paper; color: @text; font-size: 14px; }
QComboBox { background: @paper; color: @text; border: 1px solid @frame; border-radius: 4px;
            padding: 2px 18px 2px 6px; min-height: 18px; combobox-popup: 0; }
QComboBox::drop-down { border: none; width: 20px; }
QComboBox:hover { border-color: @accent; }
QComboBox:focus { border: 2px solid @deep; padding: 1px 17px 1px 5px; }
QComboBox:disabled { color: @disabled; border-color: @line; }
QComboBox QAbstractItemView { background: @paper; color: @text; border: 1px solid @frame; outline: none;
                              selection-background-color: @selected; selection-color: @text; }
QComboBox QAbstractItemView::item { min-height: 20px; padding-left: 3px; }
QPushButton { background: @paper; color: @text; border: 1px solid @frame; padding: 2px 8px; min-height: 18px; }
QPushButton:hover { border-color: @deep; }
QPushButton:checked { background: @deep; color: @paper; border-color: @deep; }
QPushButton:focus { border: 2px solid @deep; padding: 1px 7px; }
QPushButton:checked:focus { border-color: @warm; }
QPushButton:disabled { color: @disabled; border-color: @line; }
QPushButton:checked:disabled { background: @line; color: @muted; border-color: @line; }
QPushButton::menu-indicator { width: 0; }
QMenu { background: @paper; color: @text; border: 1px solid @frame; padding: 4px 0; }
QMenu::item { padding: 3px 24px 3px 26px; }
QMenu::item:selected { background: @selected; color: @text; }
QMenu::separator { height: 1px; background: @line; margin: 4px 8px; }
QGraphicsView { border: 2px solid @paper; }
QGraphicsView:focus { border-color: @accent; }
QTableView { background: @paper; border: none; }
QTableView QTableCornerButton::section { background: @deep; border: none; }
QHeaderView { background: @deep; border: none; }
QAbstractScrollArea::corner { background: @ground; border: none; }
QScrollBar:vertical { background: @ground; width: 12px; margin: 0; border: none; }
QScrollBar:horizontal { background: @ground; height: 12px; margin: 0; border: none; }
QScrollBar::handle { background: @handle; border-radius: 4px; margin: 2px; }
QScrollBar::handle:vertical { min-height: 28px; }
QScrollBar::handle:horizontal { min-width: 28px; }
QScrollBar::handle:hover { background: @accent; }
QScrollBar::add-line, QScrollBar::sub-line { width: 0; height: 0; border: none; }
QScrollBar::add-page, QScrollBar::sub-page { background: @ground; }
QToolTip { background: @deep; color: @paper; border: 1px solid @deep; padding: 4px;
           font-family: "Liberation Sans"; font-size: 12px; }
)";

}  // namespace controls::dataanalyser
