#pragma once

#include <QEventLoop>
#include <QPointer>

#include "platform/windows/SurfaceWidget.h"

namespace platform {

class CDialog;
struct DialogTemplate;

/// The window of a dialog, with its controls.
class DialogWidget : public SurfaceWidget {
  public:
    /// Makes it hidden, in the middle of `parent`, or of the screen when there is none.
    DialogWidget(CDialog& owner, const DialogTemplate& drawnUp, QWidget* parent);
    ~DialogWidget() override;

    QRect outerRect() const override { return frameGeometry(); }
    /// `rect` is the outer rectangle.
    void place(const QRect& rect) override;

    void focusFirstControl();
    /// Shows the window, before which no other takes input, until `finish` is called or the window ends. The
    /// widget itself may be gone then.
    void runModal();
    void finish();
    void end() override;

  protected:
    void closeEvent(QCloseEvent* event) override;

  private:
    void centre();

    QPointer<QEventLoop> loop_;
    bool finished_ = false;
};

}  // namespace platform
