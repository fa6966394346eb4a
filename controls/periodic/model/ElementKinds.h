#pragma once

#include <optional>
#include <string_view>

#include "controls/elements/Element.h"
#include "controls/periodic/model/TableView.h"

namespace controls::periodic {

/// The three kinds of the view of metals.
enum class Character : std::uint8_t { metal, metalloid, nonmetal };

Character characterOf(Family family);

/// How many kinds of elements a view tells apart, 0 for a view of a quantity. Kinds are counted from 1 in the
/// order of the legend, as families, characters and states of matter are.
int kindCount(TableView view);

/// The kind of an element in a view, at a temperature; 0 in a view of a quantity.
int kindOf(const Element& element, TableView view, double kelvin);

/// The name of a kind in the legend, in code page 1253.
std::string_view kindName(TableView view, int kind);

}  // namespace controls::periodic
