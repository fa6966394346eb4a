#pragma once

#include <QPushButton>

class QButtonGroup;

namespace controls::dataanalyser {

/// Makes a button of a strip. Its name is also its tool tip.
QPushButton* makeButton(const QString& text, const QString& name, QWidget* parent);

/// Makes a button that stays pressed until it is clicked again.
QPushButton* makeToggle(const QString& text, const QString& name, QWidget* parent);

/// Adds a button to a group in which one button is pressed at a time.
void addChoice(QButtonGroup& group, int id, const QString& text, const QString& name, QWidget* parent);

/// Presses the button with this id. The Tab key leads to this button, and arrow keys to the others of the
/// group.
void choose(const QButtonGroup& group, int id);

/// Makes a row with the buttons of a group side by side.
QWidget* joinedButtons(const QButtonGroup& group, QWidget* parent);

}  // namespace controls::dataanalyser
