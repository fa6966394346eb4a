#pragma once

class QWidget;

namespace platform {

/// Whether any of the widget lies within its window: what the program does not show now it moves out of
/// sight.
bool isInSight(const QWidget& widget);

/// Moves the keyboard focus on from a widget as the tabulator does, to the next that takes it and is in
/// sight; false when there is no other.
bool focusNextInSight(QWidget& from, bool forward);

}  // namespace platform
