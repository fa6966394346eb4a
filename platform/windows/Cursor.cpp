#include "platform/windows/Cursor.h"

#include <QApplication>
#include <QCursor>
#include <QPixmap>
#include <utility>

#include "platform/base/Resources.h"
#include "platform/drawing/Artwork.h"
#include "platform/input/MouseCapture.h"
#include "platform/qt/ClientArea.h"
#include "platform/qt/QtConvert.h"
#include "platform/qt/WindowTable.h"
#include "platform/windows/ControlLink.h"
#include "platform/windows/WindowWidget.h"

namespace platform {

namespace {

/// The window that is handling WM_SETCURSOR, 0 when none is.
HWND askedWindow = 0;

QCursor loadCursor(UINT id) {
    const QPixmap shape = QPixmap::fromImage(artworkImage(QStringLiteral(":/cursor/%1").arg(id)));
    if (shape.isNull()) return Qt::ArrowCursor;
    for (const CursorResource& cursor : Resources().cursors) {
        if (cursor.id == id) return QCursor(shape, cursor.hotSpot.x, cursor.hotSpot.y);
    }
    return QCursor(shape, 0, 0);
}

/// Not a resource: ids of resources have 16 bits.
constexpr UINT noEntryId = 0x10000;

QCursor shapeOf(UINT id) {
    if (id == 0) return Qt::ArrowCursor;
    return id == noEntryId ? QCursor(Qt::ForbiddenCursor) : loadCursor(id);
}

WindowWidget* windowUnderPointer() {
    return WindowWidget::find(WindowTable::instance().handleOf(QApplication::widgetAt(QCursor::pos())));
}

/// The standard control that is to show the cursor, null when that is another window.
QWidget* controlForCursor() {
    const ControlLink* const link = ControlLink::of(askedWindow != 0 ? askedWindow : capturingWindow());
    QWidget* const control = link ? WindowTable::instance().widget(link->handle()) : nullptr;
    return control ? &mouseWidgetOf(*control) : nullptr;
}

}  // namespace

CCursor CCursor::Arrow() { return {}; }

CCursor CCursor::NoEntry() { return FromResource(noEntryId); }

CCursor CCursor::FromResource(UINT id) {
    CCursor cursor;
    cursor.id_ = id;
    return cursor;
}

void CCursor::Set() const {
    if (QWidget* const control = controlForCursor()) return control->setCursor(shapeOf(id_));
    WindowWidget* const widget = askedWindow != 0 ? WindowWidget::find(askedWindow) : windowUnderPointer();
    if (!widget || widget->shownCursor == id_) return;
    widget->shownCursor = id_;
    widget->setCursor(shapeOf(id_));
}

void askForCursor(HWND window) {
    const HWND outer = std::exchange(askedWindow, window);
    const bool set = WindowTable::instance().send(window, WM_SETCURSOR) != 0;
    if (!set && !ControlLink::of(window)) CCursor::Arrow().Set();
    askedWindow = outer;
}

CWaitCursor::CWaitCursor() { QGuiApplication::setOverrideCursor(Qt::WaitCursor); }

CWaitCursor::~CWaitCursor() { QGuiApplication::restoreOverrideCursor(); }

}  // namespace platform
