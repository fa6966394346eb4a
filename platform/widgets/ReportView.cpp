#include "platform/widgets/ReportView.h"

#include <QApplication>
#include <QHeaderView>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QStyle>
#include <QToolTip>
#include <algorithm>

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

bool ReportView::event(QEvent* event) {
    if (event->type() == QEvent::Resize) {
        const auto& resize = static_cast<const QResizeEvent&>(*event);
        shareRoom(roomIn(resize.oldSize().width()), roomIn(resize.size().width()));
    }
    return QTreeWidget::event(event);
}

int ReportView::roomIn(int width) const {
    return width - 2 * frameWidth() - style()->pixelMetric(QStyle::PM_ScrollBarExtent, nullptr, this);
}

void ReportView::shareRoom(int before, int now) {
    const int taken = header()->length();
    // Columns that do not all fit go on being scrolled until there is room for them.
    const bool allFit = taken <= before;
    const int wanted = now > before ? std::max(taken, now) : allFit ? std::min(taken, now) : taken;
    int left = taken;
    int leftWanted = wanted;
    for (int column = 0; column < columnCount() && wanted != taken; ++column) {
        const int width = columnWidth(column);
        const int share = std::max(width * leftWanted / std::max(left, 1), header()->minimumSectionSize());
        setColumnWidth(column, share);
        left -= width;
        leftWanted -= share;
    }
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
