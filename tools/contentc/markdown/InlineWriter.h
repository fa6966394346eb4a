#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "tools/contentc/markdown/BodyContext.h"
#include "tools/contentc/markdown/HtmlLines.h"
#include "tools/contentc/markdown/InlineMarks.h"
#include "tools/contentc/markdown/MarkdownTree.h"

namespace contentc {

/// Writes the text within paragraphs, headings and cells as HTML with marks.
class InlineWriter {
  public:
    InlineWriter(const BodyContext& context, const PageSource& page, const std::vector<InlineMark>& marks,
                 Diagnostics& diagnostics)
        : context_(context), page_(page), marks_(marks), diagnostics_(diagnostics) {}

    /// Writes what is inside of a node.
    void writeChildren(cmark_node* node, HtmlLines& lines);
    /// Writes a line of raw HTML, in which our conventions count as well.
    void writeHtml(std::string_view html, HtmlLines& lines);

  private:
    void write(cmark_node* node);
    void writeText(std::string_view text);
    void writeBetweenMarks(std::string_view set, std::string (*form)(std::string_view));
    void writeMark(const InlineMark& mark);
    void writeTerm(const InlineMark& mark);
    void writeLink(cmark_node* node);
    void reportPicture(cmark_node* node);
    void writeInside(cmark_node* node, std::string_view tag);
    /// The mark whose character is the address of a link. Null when there is none.
    const InlineMark* targetOf(cmark_node* link) const;

    const BodyContext& context_;
    const PageSource& page_;
    const std::vector<InlineMark>& marks_;
    Diagnostics& diagnostics_;
    HtmlLines* lines_ = nullptr;
};

/// Code as HTML in which nothing is a mark.
std::string escapedCode(std::string_view code);

/// A line of running text, such as a caption, as HTML in UTF-8.
std::string inlineHtml(const TextLine& line, const BodyContext& context, const PageSource& page,
                       Diagnostics& diagnostics);

}  // namespace contentc
