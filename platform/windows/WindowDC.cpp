#include "platform/windows/WindowDC.h"

#include <QPointer>

#include "platform/drawing/DrawingTarget.h"
#include "platform/windows/SurfaceWidget.h"

namespace platform {

namespace {

/// A window's client area.
class WindowTarget : public CDC::Target {
  public:
    explicit WindowTarget(SurfaceWidget* widget) : widget_(widget) {}
    QImage* image() override { return widget_ ? &widget_->picture() : nullptr; }
    void drawn(const QRect& area) override {
        widget_->update(area.translated(widget_->clientArea().topLeft()));
    }

  private:
    QPointer<SurfaceWidget> widget_;
};

SurfaceWidget* painted(CWnd& window) {
    SurfaceWidget* const widget = SurfaceWidget::of(window);
    if (widget) widget->validate();
    return widget;
}

}  // namespace

CClientDC::CClientDC(CWnd& window) : CDC(std::make_unique<WindowTarget>(SurfaceWidget::of(window))) {}

CPaintDC::CPaintDC(CWnd& window) : CDC(std::make_unique<WindowTarget>(painted(window))) {}

}  // namespace platform
