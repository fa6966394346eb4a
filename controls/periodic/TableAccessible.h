#pragma once

#include <QString>

#include "controls/elements/Element.h"
#include "controls/periodic/model/TableState.h"

class QWidget;

namespace controls::periodic {

class PeriodicWidget;

/// What is read out of an element: its name, symbol and number, and what the view tells of it.
QString spokenText(const Element& element, const TableState& state);

/// As long as it is there, assistive technology finds the cells of periodic tables, each with its name and
/// place.
class TableAccess {
  public:
    TableAccess();
    ~TableAccess();
    TableAccess(const TableAccess&) = delete;
    TableAccess& operator=(const TableAccess&) = delete;

    /// Tells that the cell of an element has got the focus.
    static void focused(PeriodicWidget& table, int number);
};

}  // namespace controls::periodic
