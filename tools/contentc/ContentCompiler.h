#pragma once

#include <optional>

#include "tools/contentc/source/OutputFiles.h"
#include "tools/contentc/source/SourceTree.h"

namespace contentc {

/// Whether topics are looked at for what they still lack too.
enum class Checks { usual, complete };

/// Compiles the sources to the files of a data folder. Nothing when there was an error. Errors and warnings
/// are added to `diagnostics`. The same sources always give the same files.
std::optional<OutputFiles> compileContent(const SourceTree& tree, Diagnostics& diagnostics,
                                          Checks checks = Checks::usual);

}  // namespace contentc
