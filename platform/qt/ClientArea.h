#pragma once

#include <QRect>

class QWidget;

namespace platform {

/// A widget of which only a part is its window's client area.
class HasClientArea {
  public:
    virtual ~HasClientArea() = default;
    /// The client area in this widget's coordinates.
    virtual QRect clientArea() const = 0;
};

/// The client area of a widget, in its coordinates: for a HasClientArea what it says, for a scroll area its
/// viewport, for others the whole widget.
QRect clientAreaOf(const QWidget& widget);
/// The widget that receives mouse events: the viewport of a scroll area, else the widget itself.
QWidget& mouseWidgetOf(QWidget& widget);

}  // namespace platform
