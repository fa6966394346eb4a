#pragma once

#include "tools/contentc/source/SourceText.h"

namespace contentc {

/// HTML in UTF-8 as a line of a finished page: in code page 1253, with the characters that it lacks as
/// numeric entities. A `~` becomes an entity too, because it would count as a part of a glossary link, and so
/// do control characters, which would count as markers.
TextLine htmlInCodePage(const TextLine& utf8);

}  // namespace contentc
