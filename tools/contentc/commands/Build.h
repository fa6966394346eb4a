#pragma once

#include "tools/contentc/commands/Options.h"

namespace contentc {

/// Compiles the content and tells on standard error what is wrong with it. Whether it is right; with
/// warnings, unless they count as errors.
bool checkFolder(const Options& options);

/// The same, and writes the data folder when all is right.
bool buildFolder(const Options& options);

}  // namespace contentc
