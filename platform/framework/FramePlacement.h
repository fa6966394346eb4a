#pragma once

#include <QBasicTimer>
#include <QObject>
#include <QPointer>
#include <QRect>
#include <optional>

class QWidget;
class QWindow;

namespace platform {

/// Keeps a top-level window at an outer rectangle, which includes its frame. Qt places the area inside the
/// frame, and the window system draws the frame. Two things need care:
/// - The width of the frame is known late: the window manager tells it some time after the window is first
/// shown, and again after each change of its state. So the wanted rectangle is kept, and applied each time,
/// until the window has been in its normal state for a while.
/// - When a browser is added to the window, Qt replaces the native window. The new one gets the state and
/// place of the old one.
class FramePlacement : public QObject {
  public:
    explicit FramePlacement(QWidget& widget);

    /// Places the frame at the outer rectangle. A minimised or maximised window is restored first.
    void place(const QRect& outer);
    /// Keeps the current rectangle, to which the window will return. To be called before it is minimised or
    /// maximised.
    void remember();
    /// The rectangle of the frame, or the wanted one until the window has settled.
    QRect outer() const;

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void timerEvent(QTimerEvent* event) override;

  private:
    bool isNormal() const;
    QRect current() const;
    void apply(QRect outer);
    void followNativeWindow();

    QWidget& widget_;
    QPointer<QWindow> window_;
    std::optional<QRect> wanted_;  ///< until the window has settled
    QBasicTimer settling_;         ///< runs while the frame may still change
};

}  // namespace platform
