#pragma once

#include "tools/contentc/source/Content.h"
#include "tools/contentc/source/OutputFiles.h"

namespace contentc {

/// Adds the index files: the sections' page titles, the title lists, the indexes of the periodic table and of
/// the browse selection, and the files of the word search. The content must have been checked.
void addIndexFiles(const Content& content, OutputFiles& outputs, Diagnostics& diagnostics);

}  // namespace contentc
