#pragma once

#include <cstdint>
#include <vector>

#include "formats/ElementIndex.h"
#include "tools/contentc/source/SourceText.h"

namespace contentc {

/// A line `atomic-number page-id` of `elements.txt`.
struct ElementLine {
    SourcePlace place;
    formats::ElementPageRecord record;
};

/// Reads which page the periodic table opens for which element. Blank lines and lines that begin with `#` are
/// skipped. Wrong lines and elements named twice are reported and left out.
std::vector<ElementLine> readElements(const SourceFile& file, Diagnostics& diagnostics);

}  // namespace contentc
