#pragma once

#include <QColor>
#include <QString>

#include "controls/common/Appearance.h"
#include "controls/elements/Element.h"
#include "controls/periodic/model/TableState.h"

namespace controls::periodic {

/// The colours of a kind of elements, numbered from 1, in a view of kinds.
appearance::GroupColors kindColors(TableView view, int kind);

/// The background of cells without data, and the strokes on it.
inline constexpr QColor noData{0xEA, 0xEE, 0xF1};
inline constexpr QColor noDataStroke{0xD3, 0xDA, 0xE0};

/// How an element's cell looks in a state of the table.
struct CellLook {
    enum class Ground { plain, hatched, empty };  ///< hatched: no data; empty: not yet found

    Ground ground = Ground::plain;
    QColor fill;
    QColor edge;
    QColor text;
    QString bottom;  ///< the last line: the relative atomic mass, or the value that the view shows
    friend bool operator==(const CellLook&, const CellLook&) = default;
};

/// `highlighted` is the kind of elements that stands out, 0 for none. Cells of other kinds are then grey.
CellLook lookOf(const Element& element, const TableState& state, int highlighted);

}  // namespace controls::periodic
