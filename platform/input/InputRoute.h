#pragma once

#include <QInputEvent>
#include <QPoint>
#include <QPointer>
#include <QWidget>

namespace platform {

/// Tells the first sight of an input event from its repeats: Qt shows a press to the native window, then to
/// the widget, and then to each widget above that does not want it.
class InputRoute {
  public:
    /// Notes an event at a widget; false when it was noted before on its way there.
    bool arriveAtWidget(const QInputEvent& event, const QWidget& widget);
    /// Notes an event at the native window, before any widget.
    void arriveAtWindow(const QInputEvent& event);

  private:
    /// What stays the same in the copies that Qt makes of an event.
    struct Signature {
        QEvent::Type type = QEvent::None;
        quint64 timestamp = 0;
        QPoint position;
        int keyOrButton = 0;
        bool operator==(const Signature&) const = default;
    };
    static Signature signatureOf(const QInputEvent& event);

    Signature last_;
    QPointer<const QWidget> lastWidget_;
    bool atWindow_ = false;
};

}  // namespace platform
