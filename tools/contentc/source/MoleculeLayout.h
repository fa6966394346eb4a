#pragma once

#include <string_view>
#include <vector>

#include "tools/contentc/source/SourceText.h"

namespace contentc {

/// Marks the file of a molecule; page preparation puts the data folder in its place.
inline constexpr std::string_view moleculeMarker = "\x03..";

/// Checks the lines of a finished molecule page, because the program makes the enlarged page from them by
/// line number. It enlarges the size on line 13, switches off the setting that ends line 15 and copies up to
/// a line that begins with `</TD>`. It takes the molecule file from the first pair of quotes on its line.
void checkMoleculeLayout(const std::vector<TextLine>& lines, const SourcePlace& page,
                         Diagnostics& diagnostics);

}  // namespace contentc
