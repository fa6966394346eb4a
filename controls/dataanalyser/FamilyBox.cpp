#include "controls/dataanalyser/FamilyBox.h"

#include <QPainter>
#include <QPolygon>

#include "controls/common/Appearance.h"
#include "controls/common/QtText.h"

namespace controls::dataanalyser {

FamilyBox::FamilyBox(QWidget* parent) : QComboBox(parent) {
    addItem(QStringLiteral("Όλες οι οικογένειες"));
    for (int code = 1; code <= familyCount; ++code) addItem(toQt(familyName(*familyOfCode(code))));
    setMaxVisibleItems(count());
    setAccessibleName(QStringLiteral("Οικογένεια στοιχείων"));
}

void FamilyBox::paintEvent(QPaintEvent* event) {
    QComboBox::paintEvent(event);
    // A style sheet takes the arrow away and brings back only one from a picture file.
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(appearance::accent);
    const QPoint tip(width() - 12, height() / 2 + 3);
    painter.drawPolygon(QPolygon({tip, tip + QPoint(-5, -5), tip + QPoint(5, -5)}));
}

}  // namespace controls::dataanalyser
