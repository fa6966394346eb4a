#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "platform/framework/DialogTemplate.h"

class QWidget;

/// The controls inside a dialog's window.
namespace platform {

/// Makes a control of a template in the dialog's widget and enters it in the window table.
void createControl(const DialogControl& control, QWidget& dialog);

/// The controls of a dialog in the order of its template.
std::vector<HWND> dialogControls(HWND dialog);
/// Its first control of this id, or null.
QWidget* dialogControl(HWND dialog, int id);

/// What stands in a control; a bitmap has no text.
std::string controlText(const QWidget& control);
void setControlText(QWidget& control, std::string_view text);

/// Pushes the dialog's default button, if it has one that is enabled; else sends it the command IDOK.
void pushDefaultButton(HWND dialog);

}  // namespace platform
