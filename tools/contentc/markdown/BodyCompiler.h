#pragma once

#include "tools/contentc/markdown/BodyContext.h"

namespace contentc {

/// Turns the Markdown of a page into HTML with marks, the form in which `page.body` has it: Markdown, the
/// boxes, pictures, films, molecules, tools and equations that stand on lines of their own.
void compileBody(PageSource& page, const BodyContext& context, Diagnostics& diagnostics);

}  // namespace contentc
