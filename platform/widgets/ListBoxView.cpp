#include "platform/widgets/ListBoxView.h"

#include <QMouseEvent>
#include <QTimerEvent>

#include "platform/widgets/KeptSelection.h"
#include "platform/windows/ControlLink.h"

namespace platform {

ListBoxView::ListBoxView(DWORD style, QWidget& parent) : QListView(&parent), entries_(style & LBS_SORT) {
    setModel(&entries_);
    setUniformItemSizes(true);
    setEditTriggers(NoEditTriggers);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
}

int ListBoxView::selected() const {
    const QModelIndexList chosen = selectionModel()->selectedIndexes();
    return chosen.isEmpty() ? -1 : chosen.front().row();
}

void ListBoxView::select(int index) {
    entries_.settle();
    bySelect_ = true;
    if (index < 0) {
        clearSelection();
    } else {
        setCurrentIndex(entries_.index(index));
    }
    bySelect_ = false;
}

void ListBoxView::settleLater() {
    if (!settling_.isActive()) settling_.start(0, this);
}

QItemSelectionModel::SelectionFlags ListBoxView::selectionCommand(const QModelIndex& index,
                                                                  const QEvent* event) const {
    return keepingSelection(QListView::selectionCommand(index, event), index);
}

void ListBoxView::timerEvent(QTimerEvent* event) {
    if (event->timerId() != settling_.timerId()) return QListView::timerEvent(event);
    settling_.stop();
    entries_.settle();
}

void ListBoxView::mousePressEvent(QMouseEvent* event) {
    const int before = selected();
    QListView::mousePressEvent(event);
    // A click on the selected entry is a choice too: the program may have selected it.
    if (before >= 0 && indexAt(event->pos()).row() == before) sendCommand(*this, LBN_SELCHANGE);
}

void ListBoxView::mouseDoubleClickEvent(QMouseEvent* event) {
    QListView::mouseDoubleClickEvent(event);
    if (indexAt(event->pos()).isValid()) sendCommand(*this, LBN_DBLCLK);
}

void ListBoxView::showEvent(QShowEvent* event) {
    entries_.settle();
    QListView::showEvent(event);
    scrollTo(currentIndex());
}

void ListBoxView::selectionChanged(const QItemSelection& selected, const QItemSelection& deselected) {
    QListView::selectionChanged(selected, deselected);
    if (!bySelect_ && !selected.isEmpty()) sendCommand(*this, LBN_SELCHANGE);
}

}  // namespace platform
