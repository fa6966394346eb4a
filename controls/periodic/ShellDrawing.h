#pragma once

#include <QPainter>

#include "controls/elements/Element.h"
#include "controls/periodic/TextFitter.h"

namespace controls::periodic {

/// Draws an atom: the nucleus with the symbol, and around it a circle for each shell with its electrons.
/// Those of the outermost shell have a colour of their own. The drawing is as wide as the shorter side of the
/// area.
void paintShells(QPainter& painter, TextFitter& fitter, const QRect& area, const Element& element);

}  // namespace controls::periodic
