#pragma once

#include <optional>
#include <string_view>

#include "controls/elements/Element.h"
#include "controls/periodic/model/TableView.h"

namespace controls::periodic {

/// The kinds of elements in the view of metals.
enum class Character : std::uint8_t { metal, metalloid, nonmetal };

/// Whether the elements of a family are metals, metalloids or nonmetals.
Character characterOf(Family family);

/// The number of kinds of elements in a view, 0 in a view of a quantity. Kinds (families, characters,
/// states of matter, blocks or groups) are numbered from 1 in the order of the legend.
int kindCount(TableView view);

/// The kind of an element in a view, at a temperature; 0 in a view of a quantity.
int kindOf(const Element& element, TableView view, double kelvin);

/// The kind of the elements without a group, behind the groups 1 to 18 in their view.
inline constexpr int kindWithoutGroup = 19;

/// The name of a kind in the legend, in code page 1253; empty when there is no such kind.
std::string_view kindName(TableView view, int kind);

}  // namespace controls::periodic
