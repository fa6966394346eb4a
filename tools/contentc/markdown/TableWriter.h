#pragma once

#include <functional>

#include "tools/contentc/markdown/InlineWriter.h"

namespace contentc {

/// How many bytes of a text say that it is the caption of a table: `Πίνακας:` or `Table:` with the blanks
/// behind it; 0 when it is none.
std::size_t tableCaptionPrefix(std::string_view text);

/// Writes a table. A column aligned to the right holds numbers. With an empty head row the first column names
/// what stands in the others. `caption` is the paragraph above it, or null.
void writeTable(cmark_node* table, cmark_node* caption, InlineWriter& inlines,
                const std::function<SourcePlace(cmark_node*)>& placeOf, HtmlLines& lines);

}  // namespace contentc
