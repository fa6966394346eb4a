#pragma once

#include "tools/contentc/source/SourceTree.h"

namespace contentc {

/// Reports pictures and molecules of the author's own that are not what their names say, or are cut short.
void checkMedia(const SourceTree& tree, Diagnostics& diagnostics);

}  // namespace contentc
