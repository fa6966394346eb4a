#pragma once

#include "controls/dataanalyser/look/CategoryLook.h"

class QPainter;
class QPointF;

namespace controls::dataanalyser {

/// Draws a point with the painter's pen and brush. All shapes look as large as a circle of this radius.
void paintPoint(QPainter& painter, PointShape shape, const QPointF& place, double radius);

}  // namespace controls::dataanalyser
