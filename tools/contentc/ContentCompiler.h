#pragma once

#include <optional>

#include "tools/contentc/source/OutputFiles.h"
#include "tools/contentc/source/SourceTree.h"

namespace contentc {

/// Compiles the sources to the files of a data folder. Nothing when there was an error; all errors and
/// warnings are in `diagnostics`. The same sources give the same files.
std::optional<OutputFiles> compileContent(const SourceTree& tree, Diagnostics& diagnostics);

}  // namespace contentc
