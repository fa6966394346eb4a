#include "platform/drawing/ProgramStyle.h"

#include <QApplication>
#include <QIconEngine>
#include <QPainter>

namespace platform {

namespace {

/// A standard picture of the style, loaded when it is first shown.
class LateIcon : public QIconEngine {
  public:
    LateIcon(const QStyle& style, QStyle::StandardPixmap picture) : style_(style), picture_(picture) {}

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State state) override {
        icon().paint(painter, rect, Qt::AlignCenter, mode, state);
    }
    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
        return icon().pixmap(size, mode, state);
    }
    QPixmap scaledPixmap(const QSize& size, QIcon::Mode mode, QIcon::State state, qreal scale) override {
        return icon().pixmap(size, scale, mode, state);
    }
    QSize actualSize(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
        return icon().actualSize(size, mode, state);
    }
    QIconEngine* clone() const override { return std::make_unique<LateIcon>(style_, picture_).release(); }

  private:
    QIcon icon() const { return style_.standardIcon(picture_); }

    const QStyle& style_;
    QStyle::StandardPixmap picture_;
};

/// The style has only one small picture, which looks blurred on sharp screens.
QPixmap questionMark(int side) {
    QPixmap picture(side, side);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(0x3a, 0x7a, 0xa0));
    painter.drawEllipse(picture.rect());
    QFont font = QApplication::font();
    font.setBold(true);
    font.setPixelSize(side * 3 / 4);
    painter.setFont(font);
    painter.setPen(Qt::white);
    painter.drawText(picture.rect(), Qt::AlignCenter, QStringLiteral("?"));
    return picture;
}

/// Side of the pictures in message boxes.
constexpr int boxPicture = 32;

/// In versions for one, two and three physical pixels per logical pixel.
QIcon questionIcon() {
    QIcon icon;
    for (const int scale : {1, 2, 3}) icon.addPixmap(questionMark(boxPicture * scale));
    return icon;
}

}  // namespace

ProgramStyle::ProgramStyle() : QProxyStyle(QStringLiteral("Fusion")) {}

QIcon ProgramStyle::standardIcon(StandardPixmap picture, const QStyleOption* option,
                                 const QWidget* widget) const {
    switch (picture) {
        case SP_ToolBarHorizontalExtensionButton:
        case SP_LineEditClearButton:
            return QIcon(std::make_unique<LateIcon>(*baseStyle(), picture).release());
        case SP_MessageBoxQuestion:
            return questionIcon();
        default:
            return QProxyStyle::standardIcon(picture, option, widget);
    }
}

int ProgramStyle::pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const {
    return metric == PM_MessageBoxIconSize ? boxPicture : QProxyStyle::pixelMetric(metric, option, widget);
}

}  // namespace platform
