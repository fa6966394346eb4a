#pragma once

#include <vector>

#include "tools/contentc/source/Diagnostics.h"
#include "tools/contentc/source/OutputFiles.h"
#include "tools/contentc/source/SourceTree.h"

namespace contentc {

/// Adds the data analyser's data sets in the form of the data folder. Every faulty line is reported, and so
/// is a number that two sets have.
void addDataSets(const std::vector<SourceFile>& files, OutputFiles& outputs, Diagnostics& diagnostics);

}  // namespace contentc
