#include "tools/contentc/markdown/BodyCompiler.h"

#include "tools/contentc/markdown/BodyParts.h"
#include "tools/contentc/markdown/HtmlInCodePage.h"

namespace contentc {
namespace {

/// Adds the lists that the author has not put into the text, and the foot.
void addLists(const PageSource& page, const BodyContext& context, const BodyParts& parts, HtmlLines& lines) {
    const auto add = [&](const HtmlList& list) {
        for (const std::string& line : list) lines.addLine(line, page.place);
    };
    if (page.kind == PageKind::start && !parts.hasTopicList())
        add(topicList(context.content, page, ListHeading::own));
    if (page.kind != PageKind::entry && !parts.hasEntryList())
        add(entryList(context.content, page, ListHeading::own));
    add(pageFoot(page, context.relations.of(page)));
}

}  // namespace

void compileBody(PageSource& page, const BodyContext& context, Diagnostics& diagnostics) {
    const std::vector<TextLine> markdown = page.markdown;
    HtmlLines lines;
    BodyParts parts(context, page, lines, diagnostics);
    const bool hasLead = page.kind != PageKind::plain;
    parts.write(markdown, hasLead ? FirstParagraph::lead : FirstParagraph::plain);
    if (page.section) addLists(page, context, parts, lines);
    for (const TextLine& line : lines.take()) page.body.push_back(htmlInCodePage(line));
    const std::optional<std::string>& caption = parts.moleculeCaption();
    if (!page.section || !caption) return;
    page.scaffold = PageTemplate::molecule;
    page.moleculeCaption = htmlInCodePage({*caption, page.place}).text;
}

}  // namespace contentc
