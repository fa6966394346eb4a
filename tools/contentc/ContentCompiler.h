#pragma once

#include <optional>

#include "tools/contentc/source/OutputFiles.h"
#include "tools/contentc/source/SourceTree.h"

namespace contentc {

/// Compiles the sources to the files of a data folder. Nothing when there was an error. Errors and warnings
/// are added to `diagnostics`. The same sources always give the same files.
std::optional<OutputFiles> compileContent(const SourceTree& tree, Diagnostics& diagnostics);

}  // namespace contentc
