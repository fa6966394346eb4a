#pragma once

#include <QMargins>
#include <QPoint>
#include <QRect>
#include <optional>

#include "platform/base/DialogTemplate.h"

class QEvent;
class QMouseEvent;
class QWidget;

namespace platform {

/// The frame of a dialog that draws its frame itself, so that its client area has the same size on every
/// desktop. Does nothing for DialogFrame::window.
class DrawnFrame {
  public:
    DrawnFrame(QWidget& window, DialogFrame kind);

    /// The sizes of the frame on each side.
    QMargins margins() const;
    /// Draws the frame, during a paint event of the window.
    void paint() const;
    /// Handles a mouse event of the window if it is for the frame: dragging the caption moves the window, and
    /// a click on the close box closes it. False when the event is not for the frame.
    bool handle(QEvent& event);

  private:
    QRect caption() const;
    QRect closeBox() const;
    bool isOutsideClient(QPoint position) const;
    void press(const QMouseEvent& event);
    void release(const QMouseEvent& event);
    void paintCaption() const;

    QWidget& window_;
    DialogFrame kind_;
    std::optional<QPoint> grab_;  ///< where the caption is held, in the window's coordinates
    bool closing_ = false;        ///< the close box is held down
};

}  // namespace platform
