#pragma once

#include <QString>

#include "controls/elements/Element.h"
#include "controls/periodic/model/TableState.h"

class QWidget;

namespace controls::periodic {

class PeriodicWidget;

/// What a screen reader says of an element: its name, symbol and number, and its value in the view.
QString spokenText(const Element& element, const TableState& state);

/// While an object of this class exists, screen readers find the cells of periodic tables, each with its name
/// and place.
class TableAccess {
  public:
    TableAccess();
    ~TableAccess();
    TableAccess(const TableAccess&) = delete;
    TableAccess& operator=(const TableAccess&) = delete;

    /// Tells screen readers that the cell of an element has got the focus.
    static void focused(PeriodicWidget& table, int number);
};

}  // namespace controls::periodic
