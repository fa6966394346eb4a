#pragma once

#include <QPoint>
#include <QRect>
#include <QSize>

#include "controls/elements/Element.h"
#include "controls/periodic/model/ElementGrid.h"
#include "controls/periodic/model/TableView.h"

namespace controls::periodic {

/// The places of everything in the table, for one size of its window. All edges lie on whole pixels.
class TableLayout {
  public:
    explicit TableLayout(QSize size);

    /// The strip of views at the top, and the number of its rows.
    QRect strip() const { return strip_; }
    int stripRows() const { return stripRows_; }

    /// The cell of a place, without the gap to its neighbours.
    QRect cell(Place place) const;
    QSize cellSize() const { return {cellWidth_ - gap_, cellHeight_ - gap_}; }

    /// The number of a group, above the group's first element.
    QRect groupLabel(int group) const;
    QRect periodLabel(int period) const;
    /// The name of the lanthanides or the actinides, to the left of their row.
    QRect rowName(int row) const;
    /// The card of an element, in the free space above the transition metals.
    QRect card() const;

    /// The legend below the table. If the view has a slider, that lies to the right of it.
    QRect legend(TableView view) const;
    /// The place of the slider; empty in a view without one.
    QRect slider(TableView view) const;
    /// The item of a kind (from 1) in the legend.
    QRect kindItem(TableView view, int kind) const;
    /// The colour sample of an item, relative to the item's corner.
    QRect swatch() const;
    /// The parts of a quantity's legend: its name, the sample of a cell without data, the check box of the
    /// scale, and the colour bar with its numbers.
    QRect quantityName(TableView view) const;
    QRect noDataItem(TableView view) const;
    QRect scaleBox(TableView view) const;
    QRect colorBar(TableView view) const;
    QRect barFigures(TableView view) const;

    /// The atomic number of the element at a point, 0 when there is none.
    int elementAt(QPoint point) const;
    /// The kind whose legend item is at a point, 0 when there is none.
    int kindAt(QPoint point, TableView view) const;

    int labelPixels() const;

  private:
    int kindColumns(TableView view) const;
    /// The left third of a quantity's legend, which describes the quantity.
    QRect description(TableView view) const;
    /// The rest of the legend, which holds the colour bar and its numbers.
    QRect barSpace(TableView view) const;

    QPoint origin_;  // of the cell in column 1, row 1
    int margin_;
    int labelSize_;  // height of the group numbers, width of the period numbers
    int cellWidth_ = 0;
    int cellHeight_ = 0;
    int gap_ = 1;
    int innerGap_ = 0;  // between the seventh period and the lanthanides
    int stripRows_;
    QRect strip_;
    QRect legend_;
};

}  // namespace controls::periodic
