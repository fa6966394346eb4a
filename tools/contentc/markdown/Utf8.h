#pragma once

#include <string>
#include <string_view>

#include "tools/contentc/source/SourceText.h"

namespace contentc {

/// Adds a character in UTF-8.
void appendUtf8(std::string& text, char32_t character);

/// HTML in UTF-8 as a line of a finished page: in code page 1253, what this lacks as numeric entities. A `~`
/// becomes an entity too, as it would be taken for a part of a glossary link, and so do control characters,
/// which would be taken for markers.
TextLine htmlInCodePage(const TextLine& utf8);

}  // namespace contentc
