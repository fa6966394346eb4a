#pragma once

#include <QRect>

class QWidget;

namespace platform {

/// A widget that tells which part of it is its window's client area.
class HasClientArea {
  public:
    virtual ~HasClientArea() = default;
    /// The client area in this widget's coordinates.
    virtual QRect clientArea() const = 0;
};

/// The area of a widget that counts as client area, in its coordinates: what it tells itself, the inside of
/// one that scrolls, else the whole.
QRect clientAreaOf(const QWidget& widget);
/// The widget that receives the mouse: the inside of one that scrolls, else itself.
QWidget& mouseWidgetOf(QWidget& widget);

}  // namespace platform
