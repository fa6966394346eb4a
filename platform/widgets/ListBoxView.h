#pragma once

#include <QBasicTimer>
#include <QListView>
#include <string>
#include <string_view>
#include <vector>

#include "platform/base/ControlMessages.h"

namespace platform {

/// The entries of a list box, in code page 1253. A sorted list is put in order when it is next read, so
/// adding many entries costs only one sort.
class ListBoxEntries : public QAbstractListModel {
  public:
    explicit ListBoxEntries(bool sorted) : sorted_(sorted) {}

    void add(std::string_view text);
    void clear();
    int count() const { return static_cast<int>(entries_.size()); }
    const std::string& at(int index) const;
    /// The first entry that begins with `prefix`, in upper or lower case. The search starts after entry
    /// `after` and wraps around. −1 when there is none.
    int find(int after, std::string_view prefix) const;

    int rowCount(const QModelIndex& parent) const override;
    QVariant data(const QModelIndex& index, int role) const override;

    /// Sorts the new entries in, and shows them.
    void settle();

  private:
    void putInOrder() const;

    bool sorted_;
    mutable bool inOrder_ = true;
    mutable std::vector<std::string> entries_;
    int shown_ = 0;  ///< how many entries the view knows
};

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
