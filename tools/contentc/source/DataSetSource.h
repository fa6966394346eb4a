#pragma once

#include <vector>

#include "tools/contentc/source/Diagnostics.h"
#include "tools/contentc/source/OutputFiles.h"
#include "tools/contentc/source/SourceTree.h"

namespace contentc {

/// Adds the data sets of the data analyser, in the form that the data folder has. Every faulty line is
/// reported, and so are two sets with the same number.
void addDataSets(const std::vector<SourceFile>& files, OutputFiles& outputs, Diagnostics& diagnostics);

}  // namespace contentc
