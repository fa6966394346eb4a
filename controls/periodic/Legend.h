#pragma once

#include <QPainter>

#include "controls/periodic/TableLayout.h"
#include "controls/periodic/TextFitter.h"
#include "controls/periodic/model/TableState.h"

namespace controls::periodic {

/// Draws what the colours of a view mean: the kinds of elements, or the colour scale of a quantity with its
/// numbers and unit. The highlighted kind (0 for none) has a background of its own.
void paintLegend(QPainter& painter, TextFitter& fitter, const TableLayout& layout, const TableState& state,
                 int highlighted);

}  // namespace controls::periodic
