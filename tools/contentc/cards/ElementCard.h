#pragma once

#include <string>
#include <vector>

#include "controls/elements/Element.h"
#include "tools/contentc/cards/CardTable.h"

namespace contentc {

/// What the table of elements tells of an element. Values that are not known have no row.
std::vector<CardRow> elementRows(const controls::Element& element);

/// The element's card in HTML and UTF-8, several lines: the tile of the periodic table and beside it the
/// values, with the rows of the author (see withRowsOfAuthor).
std::string elementCard(const controls::Element& element, const std::vector<CardRow>& rowsOfAuthor);

/// An element of the family, such as "αλκάλιο", in UTF-8.
std::string_view memberOfFamily(controls::Family family);

}  // namespace contentc
