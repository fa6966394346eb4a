#include "tools/contentc/markdown/BodyCompiler.h"

#include "tools/contentc/markdown/BodyParts.h"
#include "tools/contentc/markdown/Utf8.h"

namespace contentc {

void compileBody(PageSource& page, const BodyContext& context, Diagnostics& diagnostics) {
    const std::vector<TextLine> markdown = page.markdown;
    HtmlLines lines;
    BodyParts parts(context, page, lines, diagnostics);
    const bool hasLead = page.kind != PageKind::plain;
    parts.write(markdown, hasLead ? FirstParagraph::lead : FirstParagraph::plain);
    for (const TextLine& line : lines.take()) page.body.push_back(htmlInCodePage(line));
    if (parts.hasMolecule()) page.scaffold = PageTemplate::molecule;
}

}  // namespace contentc
