#pragma once

#include <QObject>
#include <QPointer>
#include <QTimer>
#include <QWindow>
#include <functional>

class QWidget;

namespace platform {

/// Calls once when the window of a widget has been shown on the screen for the first time, or has not come
/// there in time; never from inside the constructor or the drawing.
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
