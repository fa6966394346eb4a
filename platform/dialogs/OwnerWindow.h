#pragma once

class QWidget;

namespace platform {

/// The owner for a new dialog or box: a window that stays on top, else the active window, else the first
/// visible one; null if there is none.
QWidget* ownerWindow();

/// Makes a window that is not shown yet stay on top if its owner does. Some window managers would keep it
/// behind such an owner.
void stayInFrontOf(QWidget& window, const QWidget* owner);

}  // namespace platform
