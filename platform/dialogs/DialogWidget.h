#pragma once

#include <QEventLoop>
#include <QPointer>

#include "platform/dialogs/DrawnFrame.h"
#include "platform/dialogs/GrowingControls.h"
#include "platform/windows/SurfaceWidget.h"

namespace platform {

class CDialog;

/// The widget of a dialog's window, with its controls.
class DialogWidget : public SurfaceWidget {
  public:
    /// Makes the widget, hidden, in the middle of `parent`, or of the screen for null.
    DialogWidget(CDialog& owner, const DialogTemplate& description, QWidget* parent);
    ~DialogWidget() override;

    QRect clientArea() const override { return rect().marginsRemoved(frame_.margins()); }
    /// The rectangle with a frame and a caption in the sizes that the machine's metrics give, whatever the
    /// window system draws. So the client area is as large as the program expects.
    QRect outerRect() const override;
    /// Moves and sizes the window; `rect` is an outer rectangle in the sense of `outerRect`.
    void place(const QRect& rect) override;
    void showAs(int showCommand) override;

    void focusFirstControl();
    /// Shows the window, and lets no other window take input, until `finish` is called or the window ends.
    /// The widget may be destroyed when this returns.
    void runModal();
    void finish();
    void end() override;

  protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

  private:
    void centre();
    void keepTitleEmpty();
    void letGrow(int control);
    /// The frame that the window system draws, according to the metrics.
    QMargins windowFrame() const;

    DrawnFrame frame_;
    GrowingControls growing_;
    QPointer<QEventLoop> loop_;
    bool finished_ = false;
};

}  // namespace platform
