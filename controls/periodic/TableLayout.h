#pragma once

#include <QPoint>
#include <QRect>
#include <QSize>
#include <optional>

#include "controls/common/Element.h"
#include "controls/periodic/ElementGrid.h"

namespace controls::periodic {

/// Where everything in the table lies, for one size of the window. All edges lie on whole pixels.
class TableLayout {
  public:
    explicit TableLayout(QSize size);

    /// The cell of a place, without the gap to its neighbours.
    QRect cell(Place place) const;
    QSize cellSize() const { return {cellWidth_ - gap_, cellHeight_ - gap_}; }

    /// The number of a group, just above the group's first element.
    QRect groupLabel(int group) const;
    QRect periodLabel(int period) const;
    /// The name of the lanthanides' and the actinides' row, before it.
    QRect rowName(int row) const;
    /// Free space above the transition metals.
    QRect card() const;
    QRect legendItem(Family family) const;
    /// The patch of colour in each legend item, measured from the item's corner.
    QRect legendSwatch() const;

    /// The element under a point, 0 when there is none.
    int elementAt(QPoint point) const;
    std::optional<Family> legendAt(QPoint point) const;

    int labelPixels() const;

  private:
    QPoint origin_;  // of the cell in column 1, row 1
    int margin_;
    int labelSize_;  // height of the group numbers, width of the period numbers
    int cellWidth_ = 0;
    int cellHeight_ = 0;
    int gap_ = 1;
    int innerGap_ = 0;  // between the seventh period and the lanthanides
    int legendColumns_;
    QRect legend_;
};

}  // namespace controls::periodic
