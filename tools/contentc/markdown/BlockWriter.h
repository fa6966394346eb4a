#pragma once

#include <vector>

#include "tools/contentc/markdown/BodyContext.h"
#include "tools/contentc/markdown/HtmlLines.h"

namespace contentc {

/// How the first paragraph is written.
enum class FirstParagraph { lead, plain };

/// Writes paragraphs, headings, lists, tables and raw HTML as HTML with marks. The lines, in UTF-8, follow on
/// each other in their file.
void writeBlocks(const std::vector<TextLine>& markdown, FirstParagraph first, const BodyContext& context,
                 const PageSource& page, HtmlLines& lines, Diagnostics& diagnostics);

}  // namespace contentc
