#pragma once

#include <QPainter>

#include "controls/periodic/Lettering.h"
#include "controls/periodic/TableLayout.h"
#include "controls/periodic/model/TableState.h"

namespace controls::periodic {

/// Draws what the colours of a view mean: the kinds of elements, or the colours of a quantity with figures
/// and unit. The highlighted kind (0 for none) stands on a ground of its own.
void paintLegend(QPainter& painter, Lettering& lettering, const TableLayout& layout, const TableState& state,
                 int highlighted);

}  // namespace controls::periodic
