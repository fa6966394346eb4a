#include <QApplication>
#include <QCursor>
#include <QPixmap>
#include <utility>

#include "platform/framework/Resources.h"
#include "platform/handles/WindowTable.h"
#include "platform/windows/CursorShape.h"
#include "platform/windows/QtConvert.h"
#include "platform/windows/WindowWidget.h"

namespace platform {

namespace {

/// The window that is handling WM_SETCURSOR, 0 when none is.
HWND askedWindow = 0;

QCursor loadCursor(UINT id) {
    const QPixmap shape(QStringLiteral(":/cursor/%1.png").arg(id), "PNG");
    if (shape.isNull()) return Qt::ArrowCursor;
    for (const CursorResource& cursor : Resources().cursors) {
        if (cursor.id == id) return QCursor(shape, cursor.hotSpot.x, cursor.hotSpot.y);
    }
    return QCursor(shape, 0, 0);
}

WindowWidget* windowUnderPointer() {
    return WindowWidget::find(WindowTable::instance().handleOf(QApplication::widgetAt(QCursor::pos())));
}

}  // namespace

CCursor CCursor::arrow() { return {}; }

CCursor CCursor::resource(UINT id) {
    CCursor cursor;
    cursor.id_ = id;
    return cursor;
}

void CCursor::Set() const {
    WindowWidget* const widget = askedWindow != 0 ? WindowWidget::find(askedWindow) : windowUnderPointer();
    if (!widget || widget->shownCursor == id_) return;
    widget->shownCursor = id_;
    widget->setCursor(id_ == 0 ? QCursor(Qt::ArrowCursor) : loadCursor(id_));
}

void askForCursor(HWND window) {
    const HWND outer = std::exchange(askedWindow, window);
    if (WindowTable::instance().send(window, WM_SETCURSOR) == 0) CCursor::arrow().Set();
    askedWindow = outer;
}

}  // namespace platform
