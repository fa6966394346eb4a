#include "platform/widgets/ReportView.h"

#include <QApplication>
#include <QHeaderView>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QToolTip>

#include "platform/widgets/Collation.h"
#include "platform/widgets/KeptSelection.h"
#include "platform/windows/ControlLink.h"

namespace platform {

ReportView::ReportView(DWORD style, QWidget& parent)
    : QTreeWidget(&parent), sorted_(style & LVS_SORTASCENDING) {
    setColumnCount(0);
    setRootIsDecorated(false);
    setItemsExpandable(false);
    setUniformRowHeights(true);
    setAllColumnsShowFocus(true);
    setEditTriggers(NoEditTriggers);
    header()->setSectionsClickable(true);
    header()->setSectionsMovable(false);
    header()->setStretchLastSection(false);
    header()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    connect(header(), &QHeaderView::sectionClicked, this,
            [this](int column) { tell(LVN_COLUMNCLICK, column); });
    connect(qApp, &QApplication::focusChanged, this, [this](const QWidget* from) {
        if (from == this) tell(NM_KILLFOCUS);
    });
}

int ReportView::addRow(const QString& text) {
    const int row = sorted_ ? placeFor(text) : topLevelItemCount();
    auto item = std::make_unique<QTreeWidgetItem>(QStringList(text));
    insertTopLevelItem(row, item.release());
    return row;
}

int ReportView::selectedRow() const {
    const QList<QTreeWidgetItem*> chosen = selectedItems();
    return chosen.isEmpty() ? -1 : indexOfTopLevelItem(chosen.front());
}

/// A text that its column cuts is shown whole while the pointer rests on it.
bool ReportView::viewportEvent(QEvent* event) {
    if (event->type() != QEvent::ToolTip) return QTreeWidget::viewportEvent(event);
    const auto& help = static_cast<const QHelpEvent&>(*event);
    const QModelIndex cell = indexAt(help.pos());
    const QRect place = visualRect(cell);
    const bool isCut = cell.isValid() && sizeHintForIndex(cell).width() > place.width();
    QToolTip::showText(help.globalPos(), isCut ? cell.data().toString() : QString(), viewport(), place);
    return true;
}

/// A row chosen by a key counts as one that was clicked.
void ReportView::keyPressEvent(QKeyEvent* event) {
    QTreeWidget::keyPressEvent(event);
    if (event->isAccepted()) tell(NM_CLICK);
}

QItemSelectionModel::SelectionFlags ReportView::selectionCommand(const QModelIndex& index,
                                                                 const QEvent* event) const {
    return keepingSelection(QTreeWidget::selectionCommand(index, event), index);
}

void ReportView::mousePressEvent(QMouseEvent* event) {
    if (!itemAt(event->pos())) clearSelection();
    QTreeWidget::mousePressEvent(event);
}

void ReportView::mouseReleaseEvent(QMouseEvent* event) {
    QTreeWidget::mouseReleaseEvent(event);
    if (event->button() == Qt::LeftButton) tell(NM_CLICK);
}

void ReportView::mouseDoubleClickEvent(QMouseEvent* event) {
    QTreeWidget::mouseDoubleClickEvent(event);
    tell(NM_DBLCLK);
}

void ReportView::selectionChanged(const QItemSelection& selected, const QItemSelection& deselected) {
    QTreeWidget::selectionChanged(selected, deselected);
    tell(LVN_ITEMCHANGED);
}

void ReportView::tell(int code, int column) {
    NMLISTVIEW notification;
    notification.iItem = selectedRow();
    notification.iSubItem = column;
    sendNotification(*this, code, notification);
}

int ReportView::placeFor(const QString& text) const {
    int low = 0;
    int high = topLevelItemCount();
    while (low < high) {
        const int middle = low + (high - low) / 2;
        if (greekOrder().compare(topLevelItem(middle)->text(0), text) <= 0) {
            low = middle + 1;
        } else {
            high = middle;
        }
    }
    return low;
}

}  // namespace platform
