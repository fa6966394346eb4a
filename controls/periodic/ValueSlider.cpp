#include "controls/periodic/ValueSlider.h"

#include <QMouseEvent>
#include <QPainter>
#include <QSignalBlocker>
#include <algorithm>
#include <utility>

#include "controls/common/Appearance.h"

namespace controls::periodic {

namespace {

constexpr int grooveHeight = 4;
constexpr int pageSteps = 10;

}  // namespace

ValueSlider::ValueSlider(TextFitter& fitter, QWidget* parent)
    : QSlider(Qt::Horizontal, parent), fitter_(fitter) {
    setFocusPolicy(Qt::TabFocus);
    setCursor(Qt::PointingHandCursor);
}

void ValueSlider::setPurpose(Purpose purpose, int value) {
    purpose_ = std::move(purpose);
    const QSignalBlocker quiet(this);
    setRange(purpose_.min, purpose_.max);
    setSingleStep(purpose_.step);
    setPageStep(purpose_.step * pageSteps);
    setAccessibleName(purpose_.name);
    setValue(value);
    update();
}

QRect ValueSlider::groove() const {
    const int half = height() / 2;
    const int handle = half / 2;
    return {handle, half + (half - grooveHeight) / 2, std::max(width() - 2 * handle, 1), grooveHeight};
}

int ValueSlider::positionOf(int value) const {
    const QRect line = groove();
    const int range = std::max(maximum() - minimum(), 1);
    return line.left() + (line.width() - 1) * (value - minimum()) / range;
}

int ValueSlider::valueAt(int x) const {
    const QRect line = groove();
    const double share = std::clamp((x - line.left()) / std::max(line.width() - 1.0, 1.0), 0.0, 1.0);
    return minimum() + qRound(share * (maximum() - minimum()));
}

void ValueSlider::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.fillRect(rect(), appearance::ground);
    painter.setPen(appearance::text);
    if (purpose_.words) {
        fitter_.draw(painter, QRect(0, 0, width(), height() / 2), purpose_.words(value()),
                     height() * 38 / 100, Qt::AlignCenter, QFont::DemiBold);
    }
    const QRect line = groove();
    const int x = positionOf(value());
    painter.fillRect(line, appearance::line);
    painter.fillRect(QRect(line.left(), line.top(), x - line.left(), line.height()), appearance::accent);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(hasFocus() ? appearance::warm : appearance::paper, 2));
    painter.setBrush(appearance::deep);
    const double radius = height() / 4.0 - 1;
    painter.drawEllipse(QPointF(x + 0.5, line.center().y() + 0.5), radius, radius);
}

void ValueSlider::mousePressEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton) setValue(valueAt(event->position().toPoint().x()));
}

void ValueSlider::mouseMoveEvent(QMouseEvent* event) {
    if (event->buttons().testFlag(Qt::LeftButton)) setValue(valueAt(event->position().toPoint().x()));
}

// QSlider's own handling would compute another value.
void ValueSlider::mouseReleaseEvent(QMouseEvent*) {}

void ValueSlider::mouseDoubleClickEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton) setValue(purpose_.usual);
}

}  // namespace controls::periodic
