#include "platform/drawing/DC.h"

#include <QPainter>
#include <algorithm>
#include <limits>

#include "platform/drawing/DrawingTarget.h"
#include "platform/qt/QtConvert.h"

namespace platform {

namespace {

/// Runs `draw` with a painter that replaces pixels without blending. Does nothing if there is nothing to draw
/// on or the area is empty.
template <class Draw>
void paint(CDC::Target* target, const QRect& area, Draw draw) {
    QImage* const image = target ? target->image() : nullptr;
    if (!image || image->isNull() || area.isEmpty()) return;
    {
        QPainter painter(image);
        painter.setCompositionMode(QPainter::CompositionMode_Source);
        draw(painter);
    }
    target->drawn(area);
}

/// Whether a picture of this pixel ratio must be scaled to be drawn.
bool isScaled(const QPainter& painter, qreal ratio) {
    return ratio > 1 && ratio != painter.device()->devicePixelRatioF();
}

/// Turns smoothing on if the picture must be scaled.
void smoothIfScaled(QPainter& painter, const QImage& picture) {
    painter.setRenderHint(QPainter::SmoothPixmapTransform, isScaled(painter, picture.devicePixelRatio()));
}

/// Draws a picture whose rows come from bottom to top. It is mirrored in strips of a few rows: memory for a
/// whole mirrored picture would cost more time than the drawing.
void drawBottomUp(QPainter& painter, QPoint topLeft, const QImage& bottomUp, int scale) {
    constexpr int strip = 32;
    // Scaled strips would show their edges.
    const int step = isScaled(painter, scale) ? bottomUp.height() : strip;
    for (int top = 0; top < bottomUp.height(); top += step) {
        const int rows = std::min(step, bottomUp.height() - top);
        const QImage part(bottomUp.constScanLine(bottomUp.height() - top - rows), bottomUp.width(), rows,
                          bottomUp.bytesPerLine(), bottomUp.format());
        QImage picture = part.mirrored();
        picture.setDevicePixelRatio(scale);
        smoothIfScaled(painter, picture);
        painter.drawImage(topLeft + QPointF(0, static_cast<qreal>(top) / scale), picture);
    }
}

/// Bytes of a row of pixels of 3 bytes, rounded up to a multiple of 4.
std::int64_t dibStride(std::int64_t width) { return (width * 3 + 3) / 4 * 4; }

/// Whether a picture of this header can be drawn at all.
bool isDrawable(const BITMAPINFOHEADER& header) {
    constexpr std::int64_t maxBytes = std::numeric_limits<std::int32_t>::max();
    return header.biWidth > 0 && header.biHeight > 0 &&
           dibStride(header.biWidth) <= maxBytes / header.biHeight;
}

/// The part of `source` that is inside `image`, and where that part goes if all of `source` goes to `target`.
struct Stretch {
    QRectF source;
    QRectF target;
};

Stretch clip(const QRectF& source, const QRectF& target, const QImage& image) {
    const qreal ratio = image.devicePixelRatio();
    const QRectF inside = source & QRectF(0, 0, image.width() / ratio, image.height() / ratio);
    const qreal scaleX = target.width() / source.width();
    const qreal scaleY = target.height() / source.height();
    return {QRectF(inside.topLeft() * ratio, inside.size() * ratio),
            QRectF(target.x() + (inside.x() - source.x()) * scaleX,
                   target.y() + (inside.y() - source.y()) * scaleY, inside.width() * scaleX,
                   inside.height() * scaleY)};
}

}  // namespace

CDC::CDC() = default;

CDC::CDC(std::unique_ptr<Target> target) : target_(std::move(target)) {}

CDC::CDC(CDC&&) noexcept = default;

CDC& CDC::operator=(CDC&&) noexcept = default;

CDC::~CDC() = default;

CDC CDC::CreateCompatibleDC(const CDC&) { return {}; }

void CDC::SelectObject(const CBitmap& bitmap) { target_ = std::make_unique<BitmapTarget>(bitmap.image_); }

void CDC::BitBlt(int x, int y, int width, int height, const CDC& source, int sourceX, int sourceY) {
    StretchBlt(x, y, width, height, source, sourceX, sourceY, width, height);
}

void CDC::StretchBlt(int x, int y, int width, int height, const CDC& source, int sourceX, int sourceY,
                     int sourceWidth, int sourceHeight) {
    const QImage* const from = source.target_ ? source.target_->image() : nullptr;
    if (!from || sourceWidth <= 0 || sourceHeight <= 0) return;
    const QRect area(x, y, width, height);
    // The copy shares its pixels with `from` until the painter writes. So a picture can be drawn onto itself.
    const QImage image = *from;
    paint(target_.get(), area, [&](QPainter& painter) {
        smoothIfScaled(painter, image);
        const Stretch stretch = clip(QRectF(sourceX, sourceY, sourceWidth, sourceHeight), area, image);
        if (!stretch.source.isEmpty()) painter.drawImage(stretch.target, image, stretch.source);
    });
}

void CDC::FillSolidRect(const CRect& rect, COLORREF colour) { FillRect(rect, CBrush::Solid(colour)); }

void CDC::FillRect(const CRect& rect, const CBrush& brush) {
    const QRect area = toQt(rect);
    paint(target_.get(), area, [&](QPainter& painter) {
        if (brush.pattern_) {
            painter.fillRect(area, QBrush(*brush.pattern_));
        } else {
            painter.fillRect(area, toQt(brush.colour_));
        }
    });
}

void CDC::SetDIBitsToDevice(int x, int y, const BITMAPINFOHEADER& header, const std::uint8_t* pixels,
                            int scale) {
    if (!pixels || !isDrawable(header)) return;
    const QImage bottomUp(pixels, header.biWidth, header.biHeight,
                          static_cast<qsizetype>(dibStride(header.biWidth)), QImage::Format_BGR888);
    const QRect area(x, y, header.biWidth / scale, header.biHeight / scale);
    paint(target_.get(), area,
          [&](QPainter& painter) { drawBottomUp(painter, area.topLeft(), bottomUp, scale); });
}

}  // namespace platform
