#pragma once

#include <QImage>
#include <QPointer>
#include <memory>

#include "platform/windows/DC.h"
#include "platform/windows/SurfaceWidget.h"

namespace platform {

/// What a device context draws on and copies from.
class CDC::Target {
  public:
    virtual ~Target() = default;
    /// The picture, null when there is none (any more).
    virtual QImage* image() = 0;
    /// Called after something was drawn, with the area in logical coordinates.
    virtual void drawn(const QRect&) {}
};

/// A bitmap that is selected into a memory context.
class BitmapTarget : public CDC::Target {
  public:
    explicit BitmapTarget(std::shared_ptr<QImage> image) : image_(std::move(image)) {}
    QImage* image() override { return image_.get(); }

  private:
    std::shared_ptr<QImage> image_;
};

/// A window's client area.
class WindowTarget : public CDC::Target {
  public:
    explicit WindowTarget(SurfaceWidget* widget) : widget_(widget) {}
    QImage* image() override { return widget_ ? &widget_->picture() : nullptr; }
    void drawn(const QRect& area) override {
        widget_->update(area.translated(widget_->clientArea().topLeft()));
    }

  private:
    QPointer<SurfaceWidget> widget_;
};

}  // namespace platform
