#pragma once

namespace controls::dataanalyser {

/// The style sheet of the analyser. Its colours are those of controls/common/Appearance.h.
inline constexpr const char* styleRules = R"(
QLabel, QPushButton, QComboBox, QMenu { font-family: "Liberation Sans"; font-size: 12px; }
#strip { background: #f3f6f9; }
#strip QLabel { background: transparent; color: #1c2733; }
#strip QLabel:disabled { color: #9aa7b4; }
#strip QLabel#title { color: #1f4e6b; font-size: 15px; font-weight: bold; }
#strip QLabel#count { color: #526070; }
QLabel#nograph { background: #ffffff; color: #1c2733; font-size: 14px; }
QComboBox { background: #ffffff; color: #1c2733; border: 1px solid #a9bfcd; border-radius: 4px;
            padding: 2px 18px 2px 6px; min-height: 18px; combobox-popup: 0; }
QComboBox::drop-down { border: none; width: 20px; }
QComboBox:hover { border-color: #3a7aa0; }
QComboBox:focus { border: 2px solid #1f4e6b; padding: 1px 17px 1px 5px; }
QComboBox:disabled { color: #9aa7b4; border-color: #d0dae3; }
QComboBox QAbstractItemView { background: #ffffff; color: #1c2733; border: 1px solid #a9bfcd; outline: none;
                              selection-background-color: #d3e5f0; selection-color: #1c2733; }
QComboBox QAbstractItemView::item { min-height: 20px; padding-left: 3px; }
QPushButton { background: #ffffff; color: #1c2733; border: 1px solid #a9bfcd; padding: 2px 8px; min-height: 18px; }
QPushButton:hover { border-color: #1f4e6b; }
QPushButton:checked { background: #1f4e6b; color: #ffffff; border-color: #1f4e6b; }
QPushButton:focus { border: 2px solid #1f4e6b; padding: 1px 7px; }
QPushButton:checked:focus { border-color: #e0a030; }
QPushButton:disabled { color: #9aa7b4; border-color: #d0dae3; }
QPushButton:checked:disabled { background: #d0dae3; color: #ffffff; border-color: #d0dae3; }
QPushButton::menu-indicator { width: 0; }
QMenu { background: #ffffff; color: #1c2733; border: 1px solid #a9bfcd; padding: 4px 0; }
QMenu::item { padding: 3px 24px 3px 26px; }
QMenu::item:selected { background: #d3e5f0; color: #1c2733; }
QMenu::separator { height: 1px; background: #d0dae3; margin: 4px 8px; }
QGraphicsView { border: 2px solid #ffffff; }
QGraphicsView:focus { border-color: #3a7aa0; }
QTableView { background: #ffffff; border: none; }
QTableView QTableCornerButton::section { background: #1f4e6b; border: none; }
QHeaderView { background: #1f4e6b; border: none; }
QAbstractScrollArea::corner { background: #f3f6f9; border: none; }
QScrollBar:vertical { background: #f3f6f9; width: 12px; margin: 0; border: none; }
QScrollBar:horizontal { background: #f3f6f9; height: 12px; margin: 0; border: none; }
QScrollBar::handle { background: #b5c8d4; border-radius: 4px; margin: 2px; }
QScrollBar::handle:vertical { min-height: 28px; }
QScrollBar::handle:horizontal { min-width: 28px; }
QScrollBar::handle:hover { background: #3a7aa0; }
QScrollBar::add-line, QScrollBar::sub-line { width: 0; height: 0; border: none; }
QScrollBar::add-page, QScrollBar::sub-page { background: #f3f6f9; }
QToolTip { background: #1f4e6b; color: #ffffff; border: 1px solid #1f4e6b; padding: 4px;
           font-family: "Liberation Sans"; font-size: 12px; }
)";

}  // namespace controls::dataanalyser
