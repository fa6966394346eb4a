#pragma once

class QWidget;

namespace platform {

/// The window before which a dialog or box stands: one that stays on top, else the active one, else the first
/// that is on show, else none.
QWidget* ownerWindow();

}  // namespace platform
