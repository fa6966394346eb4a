#pragma once

#include <QObject>
#include <QPointer>
#include <QTimer>
#include <QWindow>
#include <functional>

class QWidget;

namespace platform {

/// Calls a function once: when the window of a widget has first been shown on the screen, or after a short
/// wait when it is not shown. The call never comes from inside the constructor or the drawing.
class FirstExposure : public QObject {
  public:
    FirstExposure(QWidget& widget, std::function<void()> call);

    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void watchWindow(const QWidget& widget);

    std::function<void()> call_;
    QTimer wait_;
    QPointer<QWindow> window_;
};

}  // namespace platform
