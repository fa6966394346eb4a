#pragma once

#include <vector>

#include "tools/contentc/source/SourceText.h"

namespace contentc {

/// Checks the lines of a finished molecule page. The program makes the enlarged page from them by line
/// number: it enlarges the size on line 13, switches off the setting that ends line 15 and copies as far as a
/// line that begins with `</TD>`; and it finds the molecule file in the first pair of quotes on its line.
void checkMoleculeLayout(const std::vector<TextLine>& lines, const SourcePlace& page,
                         Diagnostics& diagnostics);

}  // namespace contentc
