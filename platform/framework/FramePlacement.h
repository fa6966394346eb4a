#pragma once

#include <QBasicTimer>
#include <QObject>
#include <QPointer>
#include <QRect>
#include <optional>

class QWidget;
class QWindow;

namespace platform {

/// Keeps a top-level widget at an outer rectangle: that of its frame. The window system draws the frame and
/// tells its width late: when the widget is first on show, and again when its state has changed. So the
/// wanted rectangle is held, and put right, until the window has settled in its normal state. A browser in
/// the window has Qt make the native window anew; it then gets the state and the place of the one before.
class FramePlacement : public QObject {
  public:
    explicit FramePlacement(QWidget& widget);

    /// Places the frame at the outer rectangle; a minimised or maximised window is restored first.
    void place(const QRect& outer);
    /// Makes the present place the one to return to; before the window is minimised or maximised.
    void remember();
    /// Where the frame is, or will be once it has settled.
    QRect outer() const;

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void timerEvent(QTimerEvent* event) override;

  private:
    bool isNormal() const;
    QRect present() const;
    void putRight();
    void followNativeWindow();

    QWidget& widget_;
    QPointer<QWindow> window_;
    std::optional<QRect> wanted_;
    QBasicTimer settling_;
};

}  // namespace platform
