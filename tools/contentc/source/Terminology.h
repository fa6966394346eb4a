#pragma once

#include "tools/contentc/source/Content.h"

namespace contentc {

/// Warns of words in titles, summaries, texts and the glossary of the author's own folder for which its list
/// `words/terminology.txt` has others. In the list each line is `wrong | right`; blank lines and lines that
/// begin with `#` are skipped. A word between « and » is spoken of and not used.
void checkTerminology(const SourceTree& tree, const Content& content, Diagnostics& diagnostics);

}  // namespace contentc
