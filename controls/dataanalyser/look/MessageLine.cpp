#include "controls/dataanalyser/look/MessageLine.h"

#include <QPainter>

#include "controls/common/Appearance.h"

namespace controls::dataanalyser {

namespace {

constexpr int lineHeight = 22;
constexpr int margin = 10;
constexpr int fontPixels = 11;

}  // namespace

MessageLine::MessageLine(QWidget* parent) : QWidget(parent) {
    setFixedHeight(lineHeight);
    setObjectName(QStringLiteral("message"));
    setAccessibleName(QStringLiteral("Μηνύματα"));
}

QSize MessageLine::sizeHint() const { return {300, lineHeight}; }

void MessageLine::setTexts(const QString& note, const QStringList& warnings) {
    note_ = note;
    warnings_ = warnings;
    const QString whole = (QStringList(note) + warnings).join(u'\n');
    setToolTip(whole);
    setAccessibleDescription(whole);
    update();
}

void MessageLine::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.fillRect(rect(), appearance::ground);
    painter.fillRect(QRect(0, 0, width(), 1), appearance::line);
    painter.setFont(appearance::font(fontPixels));
    const QFontMetrics metrics(painter.font());
    QRect room = rect().adjusted(margin, 0, -margin, 0);
    if (!warnings_.isEmpty()) {
        QString warning = QStringLiteral("⚠ ") + warnings_.front();
        if (warnings_.size() > 1) warning += QStringLiteral(" (και άλλα %1)").arg(warnings_.size() - 1);
        const int widest = note_.isEmpty() ? room.width() : room.width() * 3 / 5;
        warning = metrics.elidedText(warning, Qt::ElideMiddle, widest);
        painter.setPen(appearance::familyColors(Family::alkaliMetal).edge);
        painter.drawText(room, Qt::AlignRight | Qt::AlignVCenter, warning);
        room.setRight(room.right() - metrics.horizontalAdvance(warning) - margin);
    }
    painter.setPen(appearance::muted);
    painter.drawText(room, Qt::AlignLeft | Qt::AlignVCenter,
                     metrics.elidedText(note_, Qt::ElideRight, room.width()));
}

}  // namespace controls::dataanalyser
