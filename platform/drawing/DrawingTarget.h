#pragma once

#include <QImage>
#include <memory>

#include "platform/drawing/DC.h"

namespace platform {

/// What a device context draws on and copies from.
class CDC::Target {
  public:
    virtual ~Target() = default;
    /// The picture; null when there is none, or no longer one.
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

}  // namespace platform
