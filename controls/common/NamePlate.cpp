#include "controls/common/NamePlate.h"

#include <QPainter>
#include <utility>

#include "controls/common/Appearance.h"

namespace controls {

namespace {

constexpr int margin = 8;
constexpr int barHeight = 3;
constexpr int largestPixels = 18;
constexpr int leastPixels = 8;

}  // namespace

NamePlate::NamePlate(QString name, QWidget* parent) : QWidget(parent), name_(std::move(name)) {
    setAccessibleName(name_);
}

QSize NamePlate::sizeHint() const { return {200, 48}; }

void NamePlate::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.fillRect(rect(), appearance::paper);
    painter.fillRect(0, height() - barHeight, width(), barHeight, appearance::warm);
    const QRect inner = rect().adjusted(margin, 0, -margin, -barHeight);
    const auto font =
        appearance::fittingFont(name_, inner.width(), largestPixels, leastPixels, QFont::DemiBold);
    painter.setFont(font.value_or(appearance::font(leastPixels)));
    painter.setPen(appearance::deep);
    painter.drawText(inner, Qt::AlignCenter, name_);
}

}  // namespace controls
