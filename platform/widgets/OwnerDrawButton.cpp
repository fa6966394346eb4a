#include "platform/widgets/OwnerDrawButton.h"

#include <QHelpEvent>
#include <QPainter>
#include <QToolTip>

#include "platform/drawing/DrawingTarget.h"
#include "platform/drawing/Surface.h"
#include "platform/widgets/Button.h"
#include "platform/windows/ControlLink.h"

namespace platform {

namespace {

/// Draws on a surface during a paint event.
class PictureDC : public CDC {
  public:
    explicit PictureDC(Surface& surface) : CDC(std::make_unique<Picture>(surface)) {}

  private:
    class Picture : public Target {
      public:
        explicit Picture(Surface& surface) : surface_(surface) {}
        QImage* image() override { return &surface_.image(); }

      private:
        Surface& surface_;
    };
};

}  // namespace

OwnerDrawButton::OwnerDrawButton(QWidget& parent) : QAbstractButton(&parent) {
    connect(this, &QAbstractButton::clicked, this, [this] { sendCommand(*this, BN_CLICKED); });
}

bool OwnerDrawButton::event(QEvent* event) {
    if (event->type() == QEvent::ToolTip) {
        QToolTip::showText(static_cast<QHelpEvent*>(event)->globalPos(), text(), this);
        return true;
    }
    return QAbstractButton::event(event);
}

void OwnerDrawButton::paintEvent(QPaintEvent*) {
    const ControlLink* const link = ControlLink::of(this);
    auto* const object = link ? dynamic_cast<CButton*>(link->object()) : nullptr;
    if (!object) return;
    Surface surface;
    surface.resize(size(), devicePixelRatioF());
    PictureDC dc(surface);
    object->DrawItem({dc, {0, 0, width(), height()}, isDown()});
    QPainter(this).drawImage(0, 0, surface.image());
}

}  // namespace platform
