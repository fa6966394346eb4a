#include "tools/contentc/markdown/BlockWriter.h"

#include <algorithm>

#include "tools/contentc/markdown/BodyMessages.h"
#include "tools/contentc/markdown/InlineWriter.h"
#include "tools/contentc/markdown/TableWriter.h"

namespace contentc {
namespace {

class BlockWriter {
  public:
    BlockWriter(int firstLine, FirstParagraph first, const MarkedText& marked, const BodyContext& context,
                const PageSource& page, HtmlLines& lines, Diagnostics& diagnostics)
        : firstLine_(firstLine),
          isLead_(first == FirstParagraph::lead),
          inlines_(context, page, marked.marks, diagnostics),
          page_(page),
          lines_(lines),
          diagnostics_(diagnostics) {}

    void writeChildren(cmark_node* node) {
        for (cmark_node* child : childrenOf(node)) write(child);
    }

  private:
    void write(cmark_node* node) {
        switch (cmark_node_get_type(node)) {
            case CMARK_NODE_PARAGRAPH:
                return writeParagraph(node);
            case CMARK_NODE_HEADING:
                return writeHeading(node);
            case CMARK_NODE_LIST:
                return writeList(node);
            case CMARK_NODE_HTML_BLOCK:
                return writeHtml(node);
            case CMARK_NODE_CODE_BLOCK:
                lines_.beginLine(placeOf(node));
                lines_.add("<PRE>");
                return writeLines(node, "</PRE>");
            case CMARK_NODE_BLOCK_QUOTE:
                lines_.addLine("<BLOCKQUOTE>", placeOf(node));
                writeChildren(node);
                return lines_.addLine("</BLOCKQUOTE>", placeOf(node));
            case CMARK_NODE_THEMATIC_BREAK:
                return lines_.addLine("<HR>", placeOf(node));
            default:
                writeOther(node);
        }
    }

    void writeOther(cmark_node* node) {
        if (!isTable(node)) return writeChildren(node);
        const auto placeOfRow = [this](cmark_node* row) { return placeOf(row); };
        writeTable(node, std::exchange(caption_, nullptr), inlines_, placeOfRow, lines_);
    }

    void writeParagraph(cmark_node* node) {
        cmark_node* next = cmark_node_next(node);
        if (next && isTable(next) && isCaption(node)) {
            caption_ = node;
            return;
        }
        if (beginsTableRow(node)) diagnostics_.warning(placeOf(node), say::tableWithoutRule);
        writeElement(node, isLead_ ? "P CLASS=\"lead\"" : "P");
        isLead_ = false;
    }

    void writeHeading(cmark_node* node) {
        int level = cmark_node_get_heading_level(node);
        if (level == 1) {
            SourcePlace place = placeOf(node);
            place.column = cmark_node_get_start_column(node);
            diagnostics_.error(place, say::headingOfTitle);
        }
        level = std::clamp(level, 2, 4);
        writeElement(node, "H" + std::to_string(level));
        isLead_ = false;
    }

    /// The node's text in an element, whose tag may have attributes.
    void writeElement(cmark_node* node, const std::string& tag) {
        lines_.beginLine(placeOf(node));
        lines_.add("<" + tag + ">");
        inlines_.writeChildren(node, lines_);
        lines_.add("</" + tag.substr(0, tag.find(' ')) + ">");
        lines_.endLine();
    }

    void writeList(cmark_node* node) {
        const bool isOrdered = cmark_node_get_list_type(node) == CMARK_ORDERED_LIST;
        const int start = cmark_node_get_list_start(node);
        const std::string tag = isOrdered ? "OL" : "UL";
        const std::string from = isOrdered && start != 1 ? " START=" + std::to_string(start) : "";
        lines_.addLine("<" + tag + from + ">", placeOf(node));
        for (cmark_node* item : childrenOf(node)) writeItem(item, cmark_node_get_list_tight(node) != 0);
        lines_.addLine("</" + tag + ">", placeOf(node));
        isLead_ = false;
    }

    void writeItem(cmark_node* item, bool isTight) {
        lines_.beginLine(placeOf(item));
        lines_.add("<LI>");
        for (cmark_node* child : childrenOf(item)) {
            if (isTight && cmark_node_get_type(child) == CMARK_NODE_PARAGRAPH) {
                inlines_.writeChildren(child, lines_);
            } else {
                write(child);
            }
        }
        lines_.add("</LI>");
        lines_.endLine();
    }

    void writeHtml(cmark_node* node) {
        lines_.beginLine(placeOf(node));
        writeLines(node, {});
        isLead_ = false;
    }

    /// The lines of a node as they are, escaped in code.
    void writeLines(cmark_node* node, std::string_view end) {
        const bool isHtml = cmark_node_get_type(node) == CMARK_NODE_HTML_BLOCK;
        std::string_view rest = literalOf(node);
        while (!rest.empty()) {
            const std::string_view line = rest.substr(0, rest.find('\n'));
            if (isHtml) {
                inlines_.writeHtml(line, lines_);
            } else {
                lines_.add(escapedCode(line));
            }
            rest.remove_prefix(std::min(line.size() + 1, rest.size()));
            if (!rest.empty()) lines_.breakLine();
        }
        lines_.add(end);
        lines_.endLine();
    }

    static bool beginsTableRow(cmark_node* paragraph) {
        cmark_node* first = cmark_node_first_child(paragraph);
        return first && literalOf(first).starts_with('|');
    }

    static bool isCaption(cmark_node* paragraph) {
        cmark_node* first = cmark_node_first_child(paragraph);
        return first && tableCaptionPrefix(literalOf(first)) > 0;
    }

    SourcePlace placeOf(cmark_node* node) const {
        SourcePlace place = page_.place;
        place.line = firstLine_ + std::max(cmark_node_get_start_line(node), 1) - 1;
        return place;
    }

    int firstLine_;
    bool isLead_;
    InlineWriter inlines_;
    const PageSource& page_;
    HtmlLines& lines_;
    Diagnostics& diagnostics_;
    /// The paragraph that is the caption of the table behind it.
    cmark_node* caption_ = nullptr;
};

}  // namespace

void writeBlocks(const std::vector<TextLine>& markdown, FirstParagraph first, const BodyContext& context,
                 const PageSource& page, HtmlLines& lines, Diagnostics& diagnostics) {
    if (markdown.empty()) return;
    const MarkedText marked = markInlines(markdown, diagnostics);
    const MarkdownTree tree = parseMarkdown(marked.text, markdown.front().place, diagnostics);
    BlockWriter(markdown.front().place.line, first, marked, context, page, lines, diagnostics)
        .writeChildren(tree.get());
}

}  // namespace contentc
