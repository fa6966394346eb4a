#pragma once

#include <string>

#include "platform/base/ControlMessages.h"

class QWidget;

/// Makes standard controls: each function makes the widget inside `parent`, enters it in the window table
/// under its id, and returns its link there. Styles are those of the control's kind.
namespace platform {

class ControlLink;

ControlLink& makeEdit(DWORD style, QWidget& parent, int id, std::string className = "Edit");
ControlLink& makeListBox(DWORD style, QWidget& parent, int id);
ControlLink& makeListView(DWORD style, QWidget& parent, int id);
ControlLink& makeTreeView(QWidget& parent, int id);
ControlLink& makeComboBox(QWidget& parent, int id);
ControlLink& makeOwnerDrawButton(QWidget& parent, int id);

}  // namespace platform
