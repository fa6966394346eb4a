#pragma once

#include "tools/contentc/source/Content.h"
#include "tools/contentc/source/OutputFiles.h"

namespace contentc {

/// Adds the index files of checked content: the sections' page titles, the title lists, the periodic table's
/// index, the browse selection's index and the files of the word search.
void addIndexFiles(const Content& content, OutputFiles& outputs, Diagnostics& diagnostics);

}  // namespace contentc
