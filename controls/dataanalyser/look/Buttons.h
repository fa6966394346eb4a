#pragma once

#include <QPushButton>

class QButtonGroup;

namespace controls::dataanalyser {

/// A button of a strip; its name is also its tool tip.
QPushButton* makeButton(const QString& text, const QString& name, QWidget* parent);

/// A button that stays pressed.
QPushButton* makeToggle(const QString& text, const QString& name, QWidget* parent);

/// Adds to a group a toggle of which one is pressed at a time.
void addChoice(QButtonGroup& group, int id, const QString& text, const QString& name, QWidget* parent);

/// Presses the button of this id. Tab leads to it, and arrow keys from it to the others of its group.
void choose(const QButtonGroup& group, int id);

/// A row of a group's buttons side by side.
QWidget* joinedButtons(const QButtonGroup& group, QWidget* parent);

}  // namespace controls::dataanalyser
