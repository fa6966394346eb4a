#pragma once

#include "platform/drawing/Surface.h"
#include "platform/windows/WindowWidget.h"

namespace platform {

/// The widget of a window that its CWnd draws. All drawing goes to the surface and stays there; paint events
/// only show the surface.
class SurfaceWidget : public WindowWidget {
  public:
    SurfaceWidget(CWnd& owner, QWidget* parent, int controlId);

    static SurfaceWidget* of(const CWnd& window);

    QImage& picture() { return surface_.image(); }

    /// Requests WM_ERASEBKGND (if `erase`) and WM_PAINT, which come when the program is next idle.
    void invalidate(bool erase) override;
    /// Cancels requested messages.
    void validate();
    /// Sends the requested messages if the window is visible.
    void deliverPaint();

    /// Has a click give the window the focus, unless the window or a child of it has the focus already.
    void takeFocusOnClick() { focusOnClick_ = true; }

  protected:
    void fitContent() override;
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;

  private:
    void focusClicked();

    Surface surface_;
    bool invalid_ = false;
    bool erase_ = false;
    bool focusOnClick_ = false;
};

}  // namespace platform
