#pragma once

#include "tools/contentc/commands/Options.h"

namespace contentc {

/// Tells on standard output how many pages, terms, pictures and so on the content has. Whether it is without
/// mistakes; with some, they are told, and tools are not counted.
bool tellCounts(const Options& options);

}  // namespace contentc
