#include "platform/widgets/TreeWidget.h"

#include <QHeaderView>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QPointer>
#include <QStyledItemDelegate>

#include "platform/input/VirtualKeys.h"
#include "platform/qt/QtChild.h"
#include "platform/widgets/Collation.h"
#include "platform/widgets/KeptSelection.h"
#include "platform/windows/ControlLink.h"

namespace platform {

namespace {

int placeFor(const QString& text, const QTreeWidgetItem& parent) {
    int low = 0;
    int high = parent.childCount();
    while (low < high) {
        const int middle = low + (high - low) / 2;
        if (greekOrder().compare(parent.child(middle)->text(0), text) <= 0) {
            low = middle + 1;
        } else {
            high = middle;
        }
    }
    return low;
}

/// Rows that are high enough for the lines between them.
class RowDelegate : public QStyledItemDelegate {
  public:
    using QStyledItemDelegate::QStyledItemDelegate;
    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override {
        return QStyledItemDelegate::sizeHint(option, index).expandedTo({0, 16});
    }
};

}  // namespace

TreeWidget::TreeWidget(QWidget& parent) : QTreeWidget(&parent) {
    setHeaderHidden(true);
    setUniformRowHeights(true);
    setItemDelegate(&makeQtChild<RowDelegate>(this));
    setEditTriggers(NoEditTriggers);
    setDragEnabled(true);
    header()->setStretchLastSection(false);
    header()->setSectionResizeMode(QHeaderView::ResizeToContents);
    for (const auto signal : {&QTreeWidget::itemExpanded, &QTreeWidget::itemCollapsed}) {
        connect(this, signal, this, [this](QTreeWidgetItem* item) { tell(TVN_ITEMEXPANDING, item); });
    }
}

QTreeWidgetItem* TreeWidget::insert(const QString& text, QTreeWidgetItem* parent, bool inOrder) {
    QTreeWidgetItem& above = parent ? *parent : *invisibleRootItem();
    auto item = std::make_unique<QTreeWidgetItem>(QStringList(text));
    above.insertChild(inOrder ? placeFor(text, above) : above.childCount(), item.get());
    return item.release();
}

QItemSelectionModel::SelectionFlags TreeWidget::selectionCommand(const QModelIndex& index,
                                                                 const QEvent* event) const {
    return keepingSelection(QTreeWidget::selectionCommand(index, event), index);
}

void TreeWidget::keyPressEvent(QKeyEvent* event) {
    NMTVKEYDOWN notification;
    notification.wVKey = virtualKey(event->key());
    const QPointer<TreeWidget> self(this);
    sendNotification(*this, TVN_KEYDOWN, notification);
    if (!self) return;
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) return enter(*event);
    // Opens one level only: where levels are read when they are opened, there may be no end of them.
    if (event->key() == Qt::Key_Asterisk) {
        if (currentItem()) currentItem()->setExpanded(true);
        return;
    }
    QTreeWidget::keyPressEvent(event);
}

void TreeWidget::enter(QKeyEvent& event) {
    const QPointer<TreeWidget> self(this);
    event.setAccepted(sendNotification(*this, NM_RETURN));
    QTreeWidgetItem* const item = self && event.isAccepted() ? currentItem() : nullptr;
    if (item && item->childCount() > 0) item->setExpanded(!item->isExpanded());
}

void TreeWidget::mouseDoubleClickEvent(QMouseEvent* event) {
    const bool onItem = itemAt(event->pos()) != nullptr;
    QTreeWidget::mouseDoubleClickEvent(event);
    if (onItem) sendNotification(*this, NM_DBLCLK);
}

void TreeWidget::startDrag(Qt::DropActions) {
    dragTold_ = true;
    tell(TVN_BEGINDRAG, currentItem());
}

void TreeWidget::mousePressEvent(QMouseEvent* event) {
    dragTold_ = false;
    QTreeWidget::mousePressEvent(event);
}

// After the drag has begun the program handles the mouse, and nothing is selected.
void TreeWidget::mouseMoveEvent(QMouseEvent* event) {
    if (!dragTold_) QTreeWidget::mouseMoveEvent(event);
}

void TreeWidget::mouseReleaseEvent(QMouseEvent* event) {
    if (!dragTold_) QTreeWidget::mouseReleaseEvent(event);
}

void TreeWidget::drawBranches(QPainter* painter, const QRect& rect, const QModelIndex& index) const {
    // Only the text of a selected row is to be marked.
    painter->fillRect(rect, palette().base());
    drawLines(*painter, rect, index);
    QTreeWidget::drawBranches(painter, rect, index);
}

/// The style draws only the buttons. These are the lines, which leave the buttons free.
void TreeWidget::drawLines(QPainter& painter, const QRect& rect, const QModelIndex& index) const {
    constexpr int buttonRadius = 6;
    painter.setPen(QPen(palette().color(QPalette::Dark), 1, Qt::DotLine));
    const int middle = rect.center().y();
    const int gap = model()->hasChildren(index) ? buttonRadius : 0;
    int x = rect.right() - indentation() / 2;
    painter.drawLine(x + gap, middle, rect.right(), middle);
    if (index.parent().isValid() || index.row() > 0) painter.drawLine(x, rect.top(), x, middle - gap);
    if (index.siblingAtRow(index.row() + 1).isValid()) painter.drawLine(x, middle + gap, x, rect.bottom());
    for (QModelIndex above = index.parent(); above.isValid(); above = above.parent()) {
        x -= indentation();
        if (above.siblingAtRow(above.row() + 1).isValid()) painter.drawLine(x, rect.top(), x, rect.bottom());
    }
}

void TreeWidget::tell(int code, QTreeWidgetItem* item) {
    NMTREEVIEW notification;
    notification.item = reinterpret_cast<HTREEITEM>(item);
    sendNotification(*this, code, notification);
}

}  // namespace platform
