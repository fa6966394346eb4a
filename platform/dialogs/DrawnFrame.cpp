#include "platform/dialogs/DrawnFrame.h"

#include <QMouseEvent>
#include <QPainter>
#include <QWidget>
#include <QWindow>
#include <utility>

#include "platform/input/InputMessages.h"
#include "platform/machine/Machine.h"

namespace platform {

namespace {

constexpr int plainBorder = 2;
/// The close box, at the right end of the caption.
constexpr QSize boxSize(15, 12);
constexpr int boxDistance = 2;

constexpr QColor face(192, 192, 192);
constexpr QColor outline(0x0A, 0x22, 0x33);
constexpr QColor captionColour(0x12, 0x38, 0x4F);
constexpr QColor heldColour(0x3A, 0x7A, 0xA0);
constexpr QColor signColour(0xD6, 0xE6, 0xEF);

}  // namespace

DrawnFrame::DrawnFrame(QWidget& window, DialogFrame kind) : window_(window), kind_(kind) {}

QMargins DrawnFrame::margins() const {
    if (kind_ == DialogFrame::window) return {};
    if (kind_ == DialogFrame::plain) return {plainBorder, plainBorder, plainBorder, plainBorder};
    const int across = machine().metric(SM_CXDLGFRAME);
    const int along = machine().metric(SM_CYDLGFRAME);
    return {across, along + machine().metric(SM_CYSMCAPTION), across, along};
}

QRect DrawnFrame::caption() const {
    if (kind_ != DialogFrame::tool) return {};
    const QMargins around = margins();
    return {around.left(), around.bottom(), window_.width() - around.left() - around.right(),
            around.top() - around.bottom()};
}

QRect DrawnFrame::closeBox() const {
    const QRect bar = caption();
    return {QPoint(bar.right() + 1 - boxDistance - boxSize.width(),
                   bar.top() + (bar.height() - boxSize.height()) / 2),
            boxSize};
}

bool DrawnFrame::isOutsideClient(QPoint position) const {
    return !window_.rect().marginsRemoved(margins()).contains(position);
}

void DrawnFrame::paint() const {
    if (kind_ == DialogFrame::window) return;
    QPainter painter(&window_);
    painter.setClipRegion(QRegion(window_.rect()) - window_.rect().marginsRemoved(margins()));
    painter.fillRect(window_.rect(), outline);
    painter.fillRect(window_.rect().adjusted(1, 1, -1, -1), kind_ == DialogFrame::tool ? face : outline);
    painter.end();
    if (kind_ == DialogFrame::tool) paintCaption();
}

void DrawnFrame::paintCaption() const {
    QPainter painter(&window_);
    painter.fillRect(caption(), captionColour);
    const QRect box = closeBox();
    if (closing_) painter.fillRect(box, heldColour);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(signColour, 1.5));
    constexpr qreal arm = 3;
    const QPointF middle = QRectF(box).center();
    painter.drawLine(middle + QPointF(-arm, -arm), middle + QPointF(arm, arm));
    painter.drawLine(middle + QPointF(-arm, arm), middle + QPointF(arm, -arm));
}

bool DrawnFrame::handle(QEvent& event) {
    if (kind_ == DialogFrame::window || !isMouseEvent(event.type())) return false;
    auto& mouse = static_cast<QMouseEvent&>(event);
    const bool held = grab_ || closing_;
    if (!held && !isOutsideClient(mouse.position().toPoint())) return false;
    event.accept();
    if (event.type() == QEvent::MouseButtonPress) press(mouse);
    if (event.type() == QEvent::MouseMove && grab_) window_.move(mouse.globalPosition().toPoint() - *grab_);
    if (event.type() == QEvent::MouseButtonRelease) release(mouse);
    return true;
}

void DrawnFrame::press(const QMouseEvent& event) {
    const QPoint position = event.position().toPoint();
    if (event.button() != Qt::LeftButton || !caption().contains(position)) return;
    closing_ = closeBox().contains(position);
    if (closing_) {
        window_.update();
    } else if (!window_.windowHandle()->startSystemMove()) {
        grab_ = position;
    }
}

void DrawnFrame::release(const QMouseEvent& event) {
    if (event.button() != Qt::LeftButton) return;
    grab_.reset();
    if (!std::exchange(closing_, false)) return;
    window_.update();
    if (closeBox().contains(event.position().toPoint())) window_.close();
}

}  // namespace platform
