#include "platform/windows/SurfaceWidget.h"

#include <QFocusEvent>
#include <QPainter>
#include <utility>

#include "platform/drawing/DC.h"
#include "platform/input/InputMessages.h"
#include "platform/windows/InputDelivery.h"
#include "platform/windows/PaintQueue.h"
#include "platform/windows/WindowDC.h"

namespace platform {

SurfaceWidget::SurfaceWidget(CWnd& owner, QWidget* parent, int controlId)
    : WindowWidget(owner, parent, controlId) {
    setAttribute(Qt::WA_OpaquePaintEvent);
    setMouseTracking(true);
    installDrawnPartsAccess();
}

SurfaceWidget* SurfaceWidget::of(const CWnd& window) {
    return dynamic_cast<SurfaceWidget*>(WindowWidget::of(window));
}

void SurfaceWidget::invalidate(bool erase) {
    invalid_ = true;
    erase_ = erase_ || erase;
    schedulePaint(*this);
}

void SurfaceWidget::validate() { invalid_ = erase_ = false; }

void SurfaceWidget::deliverPaint() {
    if (!invalid_ || !owner() || !isVisible() || surface_.isNull()) return;
    invalid_ = false;
    if (std::exchange(erase_, false)) {
        CClientDC dc(*owner());
        send(WM_ERASEBKGND, reinterpret_cast<WPARAM>(static_cast<CDC*>(&dc)));
    }
    send(WM_PAINT);
}

void SurfaceWidget::fitContent() {
    if (surface_.resize(clientArea().size(), devicePixelRatioF())) invalidate(true);
}

bool SurfaceWidget::event(QEvent* event) {
    const std::optional<MSG> message = inputMessage(*event, *this);
    if (!message) return WindowWidget::event(event);
    event->accept();
    if (event->type() == QEvent::MouseButtonPress) focusClicked();
    deliverInput(*message);
    return true;
}

void SurfaceWidget::focusClicked() {
    if (!focusOnClick_) return;
    const QWidget* const focus = window()->focusWidget();
    if (!focus || (focus != this && !isAncestorOf(focus))) setFocus(Qt::MouseFocusReason);
}

void SurfaceWidget::paintEvent(QPaintEvent*) {
    // The pixel ratio changes when the window moves to another screen.
    if (!surface_.isNull() && surface_.ratio() != devicePixelRatioF()) fitContent();
    QPainter(this).drawImage(clientArea().topLeft(), picture());
}

void SurfaceWidget::showEvent(QShowEvent* event) {
    WindowWidget::showEvent(event);
    invalidate(true);
}

void SurfaceWidget::focusInEvent(QFocusEvent* event) {
    const bool tabbed = event->reason() == Qt::TabFocusReason || event->reason() == Qt::BacktabFocusReason;
    if (tabbed && owner()) owner()->OnTabbedTo();
}

}  // namespace platform
