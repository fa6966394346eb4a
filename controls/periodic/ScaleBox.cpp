#include "controls/periodic/ScaleBox.h"

#include <QPainter>
#include <QPolygonF>

#include "controls/common/Appearance.h"

namespace controls::periodic {

ScaleBox::ScaleBox(TextFitter& fitter, QWidget* parent)
    : QCheckBox(QStringLiteral("Λογαριθμική κλίμακα"), parent), fitter_(fitter) {
    setFocusPolicy(Qt::TabFocus);
    setCursor(Qt::PointingHandCursor);
}

void ScaleBox::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.fillRect(rect(), appearance::ground);
    const int side = height() * 6 / 10;
    const QRect box(2, (height() - side) / 2, side, side);
    painter.fillRect(box, hasFocus() ? appearance::warm : appearance::accent);
    painter.fillRect(box.adjusted(1, 1, -1, -1), isChecked() ? appearance::deep : appearance::paper);
    if (isChecked()) {
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(QPen(appearance::paper, side / 7.0 + 0.5));
        const auto at = [&](double x, double y) { return box.topLeft() + QPointF(x * side, y * side); };
        painter.drawPolyline(QPolygonF({at(0.22, 0.52), at(0.42, 0.72), at(0.8, 0.28)}));
    }
    painter.setPen(appearance::text);
    fitter_.draw(painter, rect().adjusted(box.right() + 5, 0, 0, 0), text(), height() * 55 / 100,
                 Qt::AlignLeft);
}

}  // namespace controls::periodic
