#pragma once

class QWidget;

namespace platform {

/// The window before which a dialog or box stands: one that stays on top, else the active one, else the first
/// that is on show, else none.
QWidget* ownerWindow();

/// Has a window that is not shown yet stay on top if its owner does: not every window manager keeps it before
/// such an owner otherwise.
void stayBefore(QWidget& window, const QWidget* owner);

}  // namespace platform
