#include "platform/qt/ScreenRectangle.h"

#include <QPalette>
#include <QWidget>

#include "platform/qt/QtConvert.h"

namespace platform {

ScreenRectangle::ScreenRectangle(COLORREF colour)
    : widget_(std::make_unique<QWidget>(nullptr,
                                        Qt::ToolTip | Qt::FramelessWindowHint | Qt::BypassWindowManagerHint |
                                            Qt::WindowTransparentForInput | Qt::WindowDoesNotAcceptFocus)) {
    widget_->setAttribute(Qt::WA_ShowWithoutActivating);
    widget_->setPalette(toQt(colour));
    widget_->setAutoFillBackground(true);
}

ScreenRectangle::~ScreenRectangle() = default;

void ScreenRectangle::Show(const CRect& rect) {
    widget_->setGeometry(toQt(rect));
    if (!widget_->isVisible()) {
        widget_->show();
    } else {
        widget_->repaint();
    }
}

}  // namespace platform
