#pragma once

#include <QPushButton>

class QButtonGroup;

namespace controls::dataanalyser {

/// A button of a strip; its name is also its tool tip.
QPushButton* makeButton(const QString& text, const QString& name, QWidget* parent);

/// A button that stays pressed.
QPushButton* makeToggle(const QString& text, const QString& name, QWidget* parent);

/// Adds a toggle to a group of which one is pressed at a time.
void addChoice(QButtonGroup& group, int id, const QString& text, const QString& name, QWidget* parent);

/// A row of a group's buttons side by side.
QWidget* joinedButtons(const QButtonGroup& group, QWidget* parent);

}  // namespace controls::dataanalyser
