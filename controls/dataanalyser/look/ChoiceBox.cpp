#include "controls/dataanalyser/look/ChoiceBox.h"

#include <QPainter>
#include <QPolygon>
#include <QStyledItemDelegate>

#include "controls/common/Appearance.h"
#include "platform/qt/QtChild.h"

namespace controls::dataanalyser {

ChoiceBox::ChoiceBox(const QString& accessibleName, QWidget* parent) : QComboBox(parent) {
    setAccessibleName(accessibleName);
    setToolTip(accessibleName);
    setSizeAdjustPolicy(AdjustToMinimumContentsLengthWithIcon);
    setMinimumContentsLength(8);
    setMaxVisibleItems(24);
    // The usual delegate of combo boxes ignores style sheets.
    setItemDelegate(&platform::makeQtChild<QStyledItemDelegate>(this));
}

void ChoiceBox::setItems(const QList<QPair<QString, int>>& items, int chosen) {
    bool same = items.size() == count();
    for (int i = 0; same && i < count(); ++i) {
        same = itemText(i) == items[i].first && itemData(i).toInt() == items[i].second;
    }
    if (!same) {
        clear();
        for (const auto& [text, value] : items) addItem(text, value);
    }
    setCurrentIndex(findData(chosen));
    setVisible(count() > 1);
}

void ChoiceBox::paintEvent(QPaintEvent* event) {
    QComboBox::paintEvent(event);
    // With a style sheet the box has no arrow, except one from a picture file.
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(appearance::accent);
    const QPoint tip(width() - 12, height() / 2 + 3);
    painter.drawPolygon(QPolygon({tip, tip + QPoint(-5, -5), tip + QPoint(5, -5)}));
}

}  // namespace controls::dataanalyser
