#include "tools/contentc/markdown/InlineWriter.h"

#include <algorithm>

#include "platform/text/CodePage1253.h"
#include "platform/text/CodePageTable.h"
#include "tools/contentc/markdown/BodyMessages.h"
#include "tools/contentc/markdown/Formula.h"
#include "tools/contentc/markdown/PageAddresses.h"
#include "tools/contentc/markdown/Typography.h"
#include "tools/contentc/source/EscapeHtml.h"

namespace contentc {
namespace {

/// Text in HTML in which none of `signs` begins a mark.
std::string escaped(std::string_view text, std::initializer_list<std::string_view> markSigns) {
    std::string html = escapeHtml(text);
    for (const std::string_view sign : markSigns) {
        for (std::size_t at = 0; (at = html.find(sign, at)) != std::string::npos;)
            html.replace(at, 1, "&#" + std::to_string(static_cast<int>(sign.front())) + ';');
    }
    return html;
}

// A mark `{{…}}` in running text stays a mark, so that a message can say where it belongs.
std::string escapedText(std::string_view text) { return escaped(text, {"[["}); }

/// The line with a backslash before what Markdown would take for the beginning of a list, heading or
/// quotation, or for a rule.
std::string withoutBlockSigns(std::string_view line) {
    const std::size_t digits = std::min(line.find_first_not_of("0123456789"), line.size());
    const std::string_view sign = line.substr(digits, line.find(' ') - digits);
    const bool isNumbering = digits > 0 && (sign == "." || sign == ")");
    const bool isHeading = !sign.empty() && sign.find_first_not_of('#') == std::string_view::npos;
    const bool isBullet = sign == "-" || sign == "+" || sign == "*" || isHeading || sign.starts_with('>');
    const bool isRule = line.find_first_not_of("-*_ ") == std::string_view::npos;
    if (!isNumbering && !isRule && (digits > 0 || !isBullet)) return std::string(line);
    return std::string(line.substr(0, digits)) + '\\' + std::string(line.substr(digits));
}

}  // namespace

std::string escapedCode(std::string_view text) { return escaped(text, {"[[", "{{"}); }

void InlineWriter::writeChildren(cmark_node* node, HtmlLines& lines) {
    lines_ = &lines;
    for (cmark_node* child : childrenOf(node)) write(child);
}

void InlineWriter::write(cmark_node* node) {
    switch (cmark_node_get_type(node)) {
        case CMARK_NODE_TEXT:
            return writeText(literalOf(node));
        case CMARK_NODE_SOFTBREAK:
            return lines_->breakLine();
        case CMARK_NODE_LINEBREAK:
            lines_->add("<BR>");
            return lines_->breakLine();
        case CMARK_NODE_CODE:
            return lines_->add("<CODE>" + escapedCode(literalOf(node)) + "</CODE>");
        case CMARK_NODE_HTML_INLINE:
            return writeHtml(literalOf(node), *lines_);
        case CMARK_NODE_EMPH:
            return writeInside(node, "I");
        case CMARK_NODE_STRONG:
            return writeInside(node, "B");
        case CMARK_NODE_LINK:
            return writeLink(node);
        case CMARK_NODE_IMAGE:
            return reportPicture(node);
        default:
            for (cmark_node* child : childrenOf(node)) write(child);
    }
}

void InlineWriter::writeHtml(std::string_view html, HtmlLines& lines) {
    lines_ = &lines;
    writeBetweenMarks(html, [](std::string_view plain) { return std::string(plain); });
}

void InlineWriter::writeText(std::string_view text) {
    if (text.find("**") != std::string_view::npos)
        diagnostics_.warning(lines_->place(), say::strayAsterisks, {"**"});
    writeBetweenMarks(typeset(text), escapedText);
}

void InlineWriter::writeBetweenMarks(std::string_view set, std::string (*form)(std::string_view)) {
    std::string plain;
    for (std::size_t at = 0; at < set.size();) {
        const auto character = platform::codepage::decodeUtf8(set, at);
        if (character.value >= firstMark && character.value - firstMark < marks_.size()) {
            lines_->add(form(plain));
            plain.clear();
            writeMark(marks_[character.value - firstMark]);
        } else {
            plain.append(set, at, character.length);
        }
        at += character.length;
    }
    lines_->add(form(plain));
}

void InlineWriter::writeMark(const InlineMark& mark) {
    if (mark.kind == InlineMark::Kind::term) return writeTerm(mark);
    // Where Markdown sees no link, the address is text.
    if (mark.kind == InlineMark::Kind::target) return lines_->add(escapedText(mark.text));
    const Formula formula = compileFormula(mark.text);
    if (formula.fault) diagnostics_.error(mark.place, *formula.fault, {mark.text});
    lines_->add(formula.html);
}

void InlineWriter::writeTerm(const InlineMark& mark) {
    const TermSource* term = context_.terms.find(platform::fromUtf8(mark.term));
    // A term without a name has been reported already.
    if (!term && !mark.term.empty()) {
        diagnostics_.error(mark.place, say::unknownTermName, {mark.term})
            .suggestNearestOr(mark.term, context_.terms.names(), say::addTheTerm, {mark.term});
    }
    const std::string words = inlineHtml({mark.text, mark.wordsPlace}, context_, page_, diagnostics_);
    lines_->add(term && !words.empty() ? "[[" + term->key + '|' + words + "]]" : words);
}

const InlineMark* InlineWriter::targetOf(cmark_node* link) const {
    const std::string_view address = cmark_node_get_url(link);
    if (address.empty()) return nullptr;
    const char32_t character = platform::codepage::decodeUtf8(address, 0).value;
    if (character < firstMark || character - firstMark >= marks_.size()) return nullptr;
    return &marks_[character - firstMark];
}

void InlineWriter::writeLink(cmark_node* node) {
    const InlineMark* target = targetOf(node);
    const TextLine address =
        target ? TextLine{target->text, target->place} : TextLine{cmark_node_get_url(node), lines_->place()};
    const LinkTarget found = linkTarget(address, context_.pages, page_, diagnostics_);
    if (!found.address.empty()) lines_->add("<A HREF=\"" + found.address + "\">");
    if (cmark_node_first_child(node)) {
        for (cmark_node* child : childrenOf(node)) write(child);
    } else {
        lines_->add(escapeHtml(found.title));
    }
    if (!found.address.empty()) lines_->add("</A>");
}

void InlineWriter::reportPicture(cmark_node* node) {
    const InlineMark* file = targetOf(node);
    diagnostics_.error(file ? file->place : lines_->place(), say::pictureInText);
}

void InlineWriter::writeInside(cmark_node* node, std::string_view tag) {
    lines_->add("<" + std::string(tag) + ">");
    for (cmark_node* child : childrenOf(node)) write(child);
    lines_->add("</" + std::string(tag) + ">");
}

std::string inlineHtml(const TextLine& line, const BodyContext& context, const PageSource& page,
                       Diagnostics& diagnostics) {
    const MarkedText marked = markInlines({{withoutBlockSigns(line.text), line.place}}, diagnostics);
    const MarkdownTree tree = parseMarkdown(marked.text, line.place, diagnostics);
    HtmlLines lines;
    lines.beginLine(line.place);
    InlineWriter writer(context, page, marked.marks, diagnostics);
    for (cmark_node* block : childrenOf(tree.get())) {
        if (cmark_node_get_type(block) == CMARK_NODE_HTML_BLOCK) {
            writer.writeHtml(trimmed(literalOf(block).substr(0, literalOf(block).find('\n'))), lines);
        } else {
            writer.writeChildren(block, lines);
        }
    }
    std::string html;
    for (const TextLine& part : lines.take()) html += (html.empty() ? "" : " ") + part.text;
    return html;
}

}  // namespace contentc
