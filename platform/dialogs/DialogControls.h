#pragma once

#include <span>
#include <vector>

#include "platform/base/DialogTemplate.h"

class QWidget;

/// The controls inside a dialog's window.
namespace platform {

/// Makes the controls of a template in the dialog's widget and adds them to the window table. A control that
/// shows no text is named for screen readers by the label before it.
void createControls(std::span<const DialogControl> controls, QWidget& dialog);

/// The controls of a dialog, in the order of its template.
std::vector<HWND> dialogControls(HWND dialog);
/// The dialog's first control with this id, or null.
QWidget* dialogControl(HWND dialog, int id);

/// Pushes the dialog's default button if it has one; else sends it the command IDOK.
void pushDefaultButton(HWND dialog);

}  // namespace platform
