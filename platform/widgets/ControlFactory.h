#pragma once

#include <string>

#include "platform/base/ControlMessages.h"

class QWidget;

/// Makes standard controls: the widget inside `parent`, entered in the window table.
namespace platform {

class ControlLink;

ControlLink& makeEdit(DWORD style, QWidget& parent, int id, std::string className = "Edit");
ControlLink& makeListBox(DWORD style, QWidget& parent, int id);
ControlLink& makeListView(DWORD style, QWidget& parent, int id);
ControlLink& makeTreeView(QWidget& parent, int id);
ControlLink& makeComboBox(QWidget& parent, int id);
ControlLink& makeOwnerDrawButton(QWidget& parent, int id);

}  // namespace platform
