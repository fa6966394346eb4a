#pragma once

#include <QPainter>

#include "controls/periodic/TableLayout.h"
#include "controls/periodic/TextFitter.h"
#include "controls/periodic/model/TableState.h"

namespace controls::periodic {

/// Draws the legend of a view of kinds of elements: a swatch with the name of each kind. The highlighted kind
/// (0 for none) has a background of its own.
void paintKindLegend(QPainter& painter, TextFitter& fitter, const TableLayout& layout,
                     const TableState& state, int highlighted);

}  // namespace controls::periodic
