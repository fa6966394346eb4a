#include "platform/framework/ProgramStyle.h"

#include <QIconEngine>
#include <QPainter>

namespace platform {

namespace {

/// A standard picture of the style, without what differs by widget.
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

}  // namespace

ProgramStyle::ProgramStyle() : QProxyStyle(QStringLiteral("Fusion")) {}

QIcon ProgramStyle::standardIcon(StandardPixmap picture, const QStyleOption* option,
                                 const QWidget* widget) const {
    switch (picture) {
        case SP_ToolBarHorizontalExtensionButton:
        case SP_LineEditClearButton:
            return QIcon(std::make_unique<LateIcon>(*baseStyle(), picture).release());
        default:
            return QProxyStyle::standardIcon(picture, option, widget);
    }
}

}  // namespace platform
