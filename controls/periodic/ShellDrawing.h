#pragma once

#include <QPainter>

#include "controls/elements/Element.h"
#include "controls/periodic/Lettering.h"

namespace controls::periodic {

/// Draws the electrons of an atom on the circles of their shells round the nucleus, with the number on each
/// shell; the outermost stand out. A square of the area's shorter side is used.
void paintShells(QPainter& painter, Lettering& lettering, const QRect& area, const Element& element);

}  // namespace controls::periodic
