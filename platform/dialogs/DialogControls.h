#pragma once

#include <span>
#include <vector>

#include "platform/base/DialogTemplate.h"

class QWidget;

/// The controls inside a dialog's window.
namespace platform {

/// Makes the controls of a template in the dialog's widget and enters them in the window table. What shows no
/// text of its own is named for screen readers after the label before it.
void createControls(std::span<const DialogControl> controls, QWidget& dialog);

/// The controls of a dialog in the order of its template.
std::vector<HWND> dialogControls(HWND dialog);
/// Its first control of this id, or null.
QWidget* dialogControl(HWND dialog, int id);

/// Pushes the dialog's default button, if it has one that is enabled; else sends it the command IDOK.
void pushDefaultButton(HWND dialog);

}  // namespace platform
