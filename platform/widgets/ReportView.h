#pragma once

#include <QTreeWidget>

#include "platform/base/ControlMessages.h"

namespace platform {

/// A list view in report mode: rows of texts under column headers; one row can be selected. When it becomes
/// wider, its columns take the room that none of them has taken yet, and they give it back when it becomes
/// narrower.
class ReportView : public QTreeWidget {
  public:
    ReportView(DWORD style, QWidget& parent);

    /// Adds a row and returns its index: its place in the alphabetical order of column 0 in a sorted list,
    /// else the last.
    int addRow(const QString& text);
    /// The index of the selected row, −1 if there is none.
    int selectedRow() const;

  protected:
    bool event(QEvent* event) override;
    bool viewportEvent(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    QItemSelectionModel::SelectionFlags selectionCommand(const QModelIndex& index,
                                                         const QEvent* event) const override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void selectionChanged(const QItemSelection& selected, const QItemSelection& deselected) override;

  private:
    /// How many pixels of a width the columns can have, beside a scroll bar.
    int roomIn(int width) const;
    void shareRoom(int before, int now);
    void tell(int code, int column = -1);
    int placeFor(const QString& text) const;

    bool sorted_;
};

}  // namespace platform
