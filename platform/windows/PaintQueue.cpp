#include "platform/windows/PaintQueue.h"

#include <QCoreApplication>
#include <QEvent>
#include <QPointer>
#include <memory>
#include <utility>
#include <vector>

#include "platform/windows/SurfaceWidget.h"

namespace platform {

namespace {

const auto deliverEvent = static_cast<QEvent::Type>(QEvent::registerEventType());

/// Lives as long as the application object.
class PaintQueue : public QObject {
  public:
    explicit PaintQueue(QObject* application) : QObject(application) {}

    static PaintQueue& instance() {
        static QPointer<PaintQueue> queue;
        if (!queue) queue = std::make_unique<PaintQueue>(qApp).release();
        return *queue;
    }

    void add(SurfaceWidget& widget) {
        for (const auto& waiting : waiting_) {
            if (waiting == &widget) return;
        }
        if (waiting_.empty()) {
            QCoreApplication::postEvent(this, std::make_unique<QEvent>(deliverEvent).release(),
                                        Qt::LowEventPriority);
        }
        waiting_.emplace_back(&widget);
    }

    void deliver() {
        for (const auto& widget : std::exchange(waiting_, {})) {
            if (widget) widget->deliverPaint();
        }
    }

  protected:
    bool event(QEvent* event) override {
        if (event->type() != deliverEvent) return QObject::event(event);
        deliver();
        return true;
    }

  private:
    std::vector<QPointer<SurfaceWidget>> waiting_;
};

}  // namespace

void schedulePaint(SurfaceWidget& widget) { PaintQueue::instance().add(widget); }

void deliverScheduledPaints() { PaintQueue::instance().deliver(); }

}  // namespace platform
