#include "controls/select/TopicView.h"

#include <QHeaderView>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QScrollBar>

#include "controls/select/Appearance.h"
#include "controls/select/TopicDelegate.h"
#include "controls/select/TopicModel.h"

namespace controls::select {

namespace {

constexpr int scrollStep = 24;

bool isTyped(const QKeyEvent& event) {
    const auto modifiers = event.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier);
    return !modifiers && !event.text().isEmpty() && event.text().front().isPrint();
}

}  // namespace

TopicView::TopicView(TopicModel& model, QWidget* parent)
    : QTreeView(parent), delegate_(new TopicDelegate(this)) {
    setObjectName(QStringLiteral("topicView"));
    setItemDelegate(delegate_);
    setModel(&model);
    setHeaderHidden(true);
    header()->setMinimumSectionSize(1);
    setRootIsDecorated(false);
    setIndentation(0);
    setSelectionMode(NoSelection);
    setEditTriggers(NoEditTriggers);
    setExpandsOnDoubleClick(false);
    setVerticalScrollMode(ScrollPerPixel);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setAutoScroll(false);
    setFrameShape(NoFrame);
    setFont(appearance::font());
    viewport()->setAttribute(Qt::WA_Hover);
    connect(this, &QTreeView::clicked, this, &TopicView::chosen);
}

void TopicView::setAccent(const QColor& accent) {
    delegate_->setAccent(accent);
    viewport()->update();
}

void TopicView::remeasure() {
    scheduleDelayedItemsLayout();
    viewport()->update();
}

void TopicView::reveal(const QModelIndex& index) {
    setCurrentIndex(index);
    // The heights of lines may have to be computed again; until then their rectangles are wrong.
    executeDelayedItemsLayout();
    if (!viewport()->rect().contains(visualRect(index))) scrollTo(index, PositionAtCenter);
    if (isExpanded(index)) {
        scrollTo(model()->index(model()->rowCount(index) - 1, 0, index), EnsureVisible);
        scrollTo(index, EnsureVisible);
    }
}

void TopicView::keyPressEvent(QKeyEvent* event) {
    const int key = event->key();
    if (key == Qt::Key_Return || key == Qt::Key_Enter) {
        if (currentIndex().isValid()) emit chosen(currentIndex());
    } else if (key == Qt::Key_Escape) {
        emit escaped();
    } else if (key == Qt::Key_Backspace) {
        emit erased();
    } else if (isTyped(*event)) {
        emit typed(event->text());
    } else if (!handleMove(key)) {
        QTreeView::keyPressEvent(event);
    }
}

bool TopicView::handleMove(int key) {
    switch (key) {
        case Qt::Key_Up:
            if (!atTop()) return false;
            emit leftAtTop();
            return true;
        case Qt::Key_Right:
            openOrEnter();
            return true;
        case Qt::Key_Left:
            closeOrLeave();
            return true;
        default:
            return false;
    }
}

void TopicView::openOrEnter() {
    const QModelIndex current = currentIndex();
    if (!model()->hasChildren(current) || !current.isValid()) return;
    if (isExpanded(current)) {
        setCurrentIndex(model()->index(0, 0, current));
    } else {
        expand(current);
    }
}

void TopicView::closeOrLeave() {
    const QModelIndex current = currentIndex();
    if (isExpanded(current)) {
        collapse(current);
    } else if (current.parent().isValid()) {
        setCurrentIndex(current.parent());
    }
}

bool TopicView::atTop() const { return !currentIndex().isValid() || !indexAbove(currentIndex()).isValid(); }

void TopicView::mousePressEvent(QMouseEvent* event) {
    const QModelIndex index = indexAt(event->pos());
    markerPressed_ = event->button() == Qt::LeftButton && delegate_->onMarker(index, event->pos());
    if (markerPressed_) {
        setExpanded(index, !isExpanded(index));
    } else {
        QTreeView::mousePressEvent(event);
    }
}

void TopicView::mouseReleaseEvent(QMouseEvent* event) {
    if (!markerPressed_) QTreeView::mouseReleaseEvent(event);
    markerPressed_ = false;
}

void TopicView::mouseDoubleClickEvent(QMouseEvent* event) {
    // The first press has already chosen the line. On a marker, a double click counts as two clicks.
    if (delegate_->onMarker(indexAt(event->pos()), event->pos())) {
        mousePressEvent(event);
    } else {
        QTreeView::mouseDoubleClickEvent(event);
    }
}

void TopicView::resizeEvent(QResizeEvent* event) {
    QTreeView::resizeEvent(event);
    verticalScrollBar()->setSingleStep(scrollStep);
    // Titles break into other lines now.
    if (event->size().width() != event->oldSize().width()) scheduleDelayedItemsLayout();
}

void TopicView::focusInEvent(QFocusEvent* event) {
    QTreeView::focusInEvent(event);
    if (!currentIndex().isValid()) setCurrentIndex(model()->index(0, 0));
}

}  // namespace controls::select
