#pragma once

#include <QMenuBar>

#include "platform/framework/FramePlacement.h"
#include "platform/windows/WindowWidget.h"

namespace platform {

class CFrameWnd;

/// The widget of the frame: a menu bar, and the client area below it.
class FrameWidget : public WindowWidget {
  public:
    explicit FrameWidget(CFrameWnd& owner);

    QRect clientArea() const override;
    QRect outerRect() const override { return placement_.outer(); }
    void place(const QRect& outer) override;
    void showAs(int showCommand) override;
    /// Covers the screen, or goes back to the place and state of before.
    void toggleFullScreen();
    void invalidate(bool) override { update(); }

  protected:
    UINT sizeType() const override;
    void fitContent() override;
    void changeEvent(QEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void showEvent(QShowEvent* event) override;

  private:
    int menuHeight() const;
    void openMenuByKey();

    QMenuBar menuBar_;
    FramePlacement placement_;
    bool shown_ = false;
};

}  // namespace platform
