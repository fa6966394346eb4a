#pragma once

#include <QItemSelectionModel>

namespace platform {

/// What a click or key is to do to the selection of a list or tree, when the view would do `command` for the
/// item at `index`: neither Ctrl on the selected item nor a click beside all items takes the selection away.
inline QItemSelectionModel::SelectionFlags keepingSelection(QItemSelectionModel::SelectionFlags command,
                                                            const QModelIndex& index) {
    const bool takesAway = !index.isValid() || command & QItemSelectionModel::Deselect;
    return takesAway ? QItemSelectionModel::NoUpdate : command;
}

}  // namespace platform
