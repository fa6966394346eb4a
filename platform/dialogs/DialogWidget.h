#pragma once

#include <QEventLoop>
#include <QPointer>

#include "platform/dialogs/DrawnFrame.h"
#include "platform/windows/SurfaceWidget.h"

namespace platform {

class CDialog;

/// The window of a dialog, with its controls.
class DialogWidget : public SurfaceWidget {
  public:
    /// Makes it hidden, in the middle of `parent`, or of the screen when there is none.
    DialogWidget(CDialog& owner, const DialogTemplate& drawnUp, QWidget* parent);
    ~DialogWidget() override;

    QRect clientArea() const override { return rect().marginsRemoved(frame_.margins()); }
    /// With a frame as wide and a caption as high as the metrics say, whatever the window system draws: so
    /// the client area is as large as the program reckons.
    QRect outerRect() const override;
    /// `rect` is the outer rectangle in that sense.
    void place(const QRect& rect) override;
    void showAs(int showCommand) override;

    void focusFirstControl();
    /// Shows the window, before which no other takes input, until `finish` is called or the window ends. The
    /// widget itself may be gone then.
    void runModal();
    void finish();
    void end() override;

  protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void closeEvent(QCloseEvent* event) override;

  private:
    void centre();
    /// What the window system draws around it, by the metrics.
    QMargins windowFrame() const;

    DrawnFrame frame_;
    QPointer<QEventLoop> loop_;
    bool finished_ = false;
};

}  // namespace platform
