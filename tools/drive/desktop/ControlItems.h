#pragma once

#include <string>

#include "tools/drive/script/Json.h"

class QWidget;
class QAbstractItemView;
class QModelIndex;

namespace drive {

/// The name of a control's kind in the answer of `dialog`.
const char* kindOf(const QWidget& control);

/// Adds a control's contents to its description: items, columns, rows, what is selected or ticked.
void describeItems(QWidget& control, Json& description);

/// The item that a word names by its index or its text; in a tree by the texts from the top, joined by `/`.
/// Not valid when there is none.
QModelIndex itemOf(const QAbstractItemView& view, const std::string& word);
/// The same for a combo box; −1 when there is none.
int comboItemOf(const QWidget& combo, const std::string& word);

}  // namespace drive
