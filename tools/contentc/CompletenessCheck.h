#pragma once

#include "tools/contentc/source/Content.h"

namespace contentc {

/// Warns of topics that lack what a topic of the bundled content has: a quiz, school years, and a picture,
/// molecule, film or tool; and of those that are too long to be read. Bodies must have been compiled.
void checkCompleteness(const Content& content, Diagnostics& diagnostics);

}  // namespace contentc
