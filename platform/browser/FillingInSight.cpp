#include "platform/browser/FillingInSight.h"

#include <QApplication>
#include <QEvent>
#include <QWidget>

#include "platform/input/TabOrder.h"

namespace platform {

FillingInSight::FillingInSight(QWidget& area, QWidget* filling)
    : QObject(filling), area_(area), filling_(*filling) {
    soon_.setSingleShot(true);
    connect(&soon_, &QTimer::timeout, this, &FillingInSight::fill);
    for (QWidget* around = &area; around; around = around->isWindow() ? nullptr : around->parentWidget()) {
        around->installEventFilter(this);
    }
    filling_.hide();
    fill();
}

bool FillingInSight::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() != QEvent::Move && event->type() != QEvent::Resize) return false;
    if (!isInSight(area_)) {
        hide();
    } else if (watched == &area_) {
        fill();
    } else {
        // What comes into sight is often moved first and then gets its size, for which the page is laid out.
        soon_.start(0);
    }
    return false;
}

void FillingInSight::hide() {
    soon_.stop();
    if (filling_.isAncestorOf(QApplication::focusWidget())) focusAroundComponent(area_);
    filling_.hide();
}

void FillingInSight::fill() {
    filling_.setGeometry(area_.rect());
    if (isInSight(area_)) filling_.show();
}

}  // namespace platform
