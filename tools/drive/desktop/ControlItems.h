#pragma once

#include <string>

#include "tools/drive/script/Json.h"

class QWidget;
class QAbstractItemView;
class QModelIndex;

namespace drive {

/// What a control is, as the answer of `dialog` names it.
const char* kindOf(const QWidget& control);

/// Adds what a control holds to its description: items, columns, rows, what is selected or ticked.
void describeItems(QWidget& control, Json& description);

/// The item that a word means: its index, or its text; in a tree the texts from the top joined by `/`. Not
/// valid when there is none.
QModelIndex itemOf(const QAbstractItemView& view, const std::string& word);
/// The same for a combo box; −1 when there is none.
int comboItemOf(const QWidget& combo, const std::string& word);

}  // namespace drive
