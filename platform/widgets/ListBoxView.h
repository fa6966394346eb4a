#pragma once

#include <QBasicTimer>
#include <QListView>

#include "platform/base/ControlMessages.h"
#include "platform/widgets/ListBoxEntries.h"

namespace platform {

/// A list box in which one entry can be selected.
class ListBoxView : public QListView {
  public:
    ListBoxView(DWORD style, QWidget& parent);

    ListBoxEntries& entries() { return entries_; }
    /// Shows new entries when the program is back in its event loop.
    void settleLater();
    /// The index of the selected entry, −1 for none.
    int selected() const;
    /// Selects an entry and scrolls it into view; −1 clears the selection.
    void select(int index);

  protected:
    QItemSelectionModel::SelectionFlags selectionCommand(const QModelIndex& index,
                                                         const QEvent* event) const override;
    void timerEvent(QTimerEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void selectionChanged(const QItemSelection& selected, const QItemSelection& deselected) override;

  private:
    ListBoxEntries entries_;
    QBasicTimer settling_;
    bool bySelect_ = false;  ///< the selection is changed by `select`
};

}  // namespace platform
