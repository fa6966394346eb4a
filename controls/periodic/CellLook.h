#pragma once

#include <QColor>
#include <QString>

#include "controls/elements/Element.h"
#include "controls/periodic/model/TableState.h"

namespace controls::periodic {

/// The two colours of a kind of elements: `fill` is light enough for dark text, `edge` its strong companion.
struct KindColors {
    QColor fill;
    QColor edge;
};
KindColors kindColors(TableView view, int kind);

/// The ground of cells in which there is nothing to show.
inline constexpr QColor noData{0xEA, 0xEE, 0xF1};
/// The strokes on it.
inline constexpr QColor noDataStroke{0xD3, 0xDA, 0xE0};

/// How an element's cell looks in a state of the table.
struct CellLook {
    enum class Ground { plain, hatched, empty };  ///< hatched: no data; empty: not yet found

    Ground ground = Ground::plain;
    QColor fill;
    QColor edge;
    QColor text;
    QString bottom;  ///< the last line: the relative atomic mass, or what the view is about
    friend bool operator==(const CellLook&, const CellLook&) = default;
};

/// `highlighted` is the kind that stands out, 0 for none; cells of other kinds are grey.
CellLook lookOf(const Element& element, const TableState& state, int highlighted);

}  // namespace controls::periodic
