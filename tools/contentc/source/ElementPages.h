#pragma once

#include <vector>

#include "formats/TitleLists.h"
#include "tools/contentc/source/PageSource.h"

namespace contentc {

/// The number of an element's page: the entry of the elements' list with its atomic number.
constexpr std::int32_t elementPageNumber(int atomicNumber) { return formats::entriesPerList + atomicNumber; }

/// Adds a page for each element that has none, made from the table of elements and `families`, a file with a
/// line `family | topic | what its elements are used for` for each family. Wrong lines are reported; without
/// its line no page of a family is made.
void addElementPages(const SourceFile& families, std::vector<PageSource>& pages, Diagnostics& diagnostics);

}  // namespace contentc
