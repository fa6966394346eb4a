#pragma once

#include <QPainter>
#include <QRegion>

#include "controls/periodic/TableLayout.h"
#include "controls/periodic/TextFitter.h"
#include "controls/periodic/model/TableState.h"

namespace controls::periodic {

/// What the table shows: its state, and what pointer and keyboard have to do with it.
struct TableShown {
    TableState state;
    int hovered = 0;      ///< the element under the pointer, 0 for none
    int highlighted = 0;  ///< the kind of elements that stands out now, 0 for none
    bool focused = false;
};

/// Draws the part of the table that lies in `dirty`.
void paintTable(QPainter& painter, TextFitter& fitter, const TableLayout& layout, const TableShown& shown,
                const QRegion& dirty);

}  // namespace controls::periodic
