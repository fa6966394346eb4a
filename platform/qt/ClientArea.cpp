#include "platform/qt/ClientArea.h"

#include <QAbstractScrollArea>

namespace platform {

QRect clientAreaOf(const QWidget& widget) {
    if (const auto* const window = dynamic_cast<const HasClientArea*>(&widget)) return window->clientArea();
    const auto* const area = qobject_cast<const QAbstractScrollArea*>(&widget);
    return area ? area->viewport()->geometry() : widget.rect();
}

QWidget& mouseWidgetOf(QWidget& widget) {
    auto* const area = qobject_cast<QAbstractScrollArea*>(&widget);
    return area ? *area->viewport() : widget;
}

}  // namespace platform
