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

/// The frame of a dialog whose template gives it one that the window system has not: drawn by the dialog
/// itself, so that the client area is of the same size on every desktop. Nothing for DialogFrame::window.
class DrawnFrame {
  public:
    DrawnFrame(QWidget& window, DialogFrame kind);

    /// How much of the window it takes.
    QMargins margins() const;
    /// Draws it; during a paint event of the window.
    void paint() const;
    /// Whether a mouse event of the window was for the frame: its caption moves the window, its close box
    /// closes it.
    bool takes(QEvent& event);

  private:
    QRect caption() const;
    QRect closeBox() const;
    bool isOutsideClient(QPoint position) const;
    void press(const QMouseEvent& event);
    void release(const QMouseEvent& event);
    void paintCaption() const;

    QWidget& window_;
    DialogFrame kind_;
    std::optional<QPoint> grab_;  ///< where in the window the caption is held
    bool closing_ = false;        ///< the close box is held down
};

}  // namespace platform
