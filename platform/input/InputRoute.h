#pragma once

#include <QInputEvent>
#include <QPoint>
#include <QPointer>
#include <QWidget>

namespace platform {

/// Recognises input events that were seen before. Qt shows a press first to the native window, then to the
/// widget, then to each ancestor of a widget that ignores it.
class InputRoute {
  public:
    /// Notes an event at a widget; false when the same event was seen before.
    bool arriveAtWidget(const QInputEvent& event, const QWidget& widget);
    /// Notes an event at the native window, before any widget.
    void arriveAtWindow(const QInputEvent& event);

  private:
    /// The properties of an event that the copies made by Qt share.
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
