#include "tools/contentc/markdown/TableWriter.h"

#include <cmark-gfm-core-extensions.h>

#include <algorithm>

namespace contentc {
namespace {

/// The attribute of cells with an alignment of Markdown.
std::string_view classOf(std::uint8_t alignment) {
    if (alignment == 'r') return " CLASS=\"num\"";
    return alignment == 'c' ? " CLASS=\"mid\"" : "";
}

class TableWriter {
  public:
    TableWriter(cmark_node* table, InlineWriter& inlines, HtmlLines& lines)
        : columns_(cmark_gfm_extensions_get_table_columns(table)),
          alignments_(cmark_gfm_extensions_get_table_alignments(table)),
          inlines_(inlines),
          lines_(lines) {}

    void writeRow(cmark_node* row, bool isHead, bool firstNames) {
        lines_.add("<TR>");
        std::size_t column = 0;
        for (cmark_node* cell : childrenOf(row)) {
            const bool isName = isHead || (firstNames && column == 0);
            const std::string_view alignment = column < columns_ ? classOf(alignments_[column]) : "";
            lines_.add(isName ? "<TH" : "<TD");
            lines_.add(alignment);
            lines_.add(">");
            inlines_.writeChildren(cell, lines_);
            lines_.add(isName ? "</TH>" : "</TD>");
            ++column;
        }
        lines_.add("</TR>");
    }

  private:
    std::size_t columns_;
    const std::uint8_t* alignments_;
    InlineWriter& inlines_;
    HtmlLines& lines_;
};

bool isEmptyRow(cmark_node* row) {
    return std::ranges::all_of(childrenOf(row),
                               [](cmark_node* cell) { return !cmark_node_first_child(cell); });
}

void writeCaption(cmark_node* caption, InlineWriter& inlines, HtmlLines& lines) {
    cmark_node* first = cmark_node_first_child(caption);
    const std::string text(literalOf(first).substr(tableCaptionPrefix(literalOf(first))));
    cmark_node_set_literal(first, text.c_str());
    lines.add("<CAPTION>");
    inlines.writeChildren(caption, lines);
    lines.add("</CAPTION>");
}

}  // namespace

std::size_t tableCaptionPrefix(std::string_view text) {
    for (const std::string_view name : {"Πίνακας:", "Table:"}) {
        if (text.starts_with(name)) return std::min(text.find_first_not_of(' ', name.size()), text.size());
    }
    return 0;
}

void writeTable(cmark_node* table, cmark_node* caption, InlineWriter& inlines,
                const std::function<SourcePlace(cmark_node*)>& placeOf, HtmlLines& lines) {
    TableWriter writer(table, inlines, lines);
    lines.beginLine(placeOf(table));
    lines.add("<TABLE CLASS=\"data\">");
    if (caption) writeCaption(caption, inlines, lines);
    bool firstNames = false;
    for (cmark_node* row : childrenOf(table)) {
        const bool isHead = cmark_gfm_extensions_get_table_row_is_header(row) != 0;
        if (isHead && isEmptyRow(row)) {
            firstNames = true;
            continue;
        }
        lines.beginLine(placeOf(row));
        if (isHead) lines.add("<THEAD>");
        writer.writeRow(row, isHead, firstNames);
        if (isHead) lines.add("</THEAD>");
    }
    lines.addLine("</TABLE>", placeOf(table));
}

}  // namespace contentc
