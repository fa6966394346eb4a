#pragma once

#include "platform/drawing/Surface.h"
#include "platform/windows/WindowWidget.h"

namespace platform {

/// A window that its CWnd draws. What is drawn at any time goes to the surface and stays there; paint events
/// only show the surface.
class SurfaceWidget : public WindowWidget {
  public:
    SurfaceWidget(CWnd& owner, QWidget* parent, int controlId);

    static SurfaceWidget* of(const CWnd& window);

    QImage& picture() { return surface_.image(); }

    /// Asks for WM_ERASEBKGND (if `erase`) and WM_PAINT, which come when the program is next idle.
    void invalidate(bool erase) override;
    /// Takes back what was asked for.
    void validate();
    /// Sends the messages asked for, if the window can be seen.
    void deliverPaint();

    /// A click gives the window the focus, unless the focus is in it or below it already.
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
