#include "tools/contentc/markdown/BodyParts.h"

#include <algorithm>
#include <array>

#include "platform/text/CodePage1253.h"
#include "tools/contentc/markdown/BodyMessages.h"
#include "tools/contentc/markdown/Figure.h"
#include "tools/contentc/markdown/Formula.h"
#include "tools/contentc/markdown/InlineMarks.h"
#include "tools/contentc/markdown/InlineWriter.h"
#include "tools/contentc/markdown/Keyword.h"
#include "tools/contentc/source/EscapeHtml.h"
#include "tools/contentc/source/HeadMessages.h"

namespace contentc {
namespace {

constexpr std::string_view equationSign = "$$";
constexpr std::string_view boxSign = ":::";
constexpr std::string_view answerSign = "---";

// Each box in another costs stack.
constexpr int maxBoxes = 16;

constexpr std::array<Keyword, 9> boxes{{{"το ήξερες", "fact"},
                                        {"πείραμα", "experiment"},
                                        {"προσοχή", "caution"},
                                        {"παράδειγμα", "example"},
                                        {"ερώτηση", "question"},
                                        {"ερωτήσεις", "quiz"},
                                        {"στοιχείο", "element"},
                                        {"ένωση", "compound"},
                                        {"υπόδειξη", "hint"}}};
enum Box : std::size_t { fact, experiment, caution, example, question, quiz, element, compound, hint };

constexpr std::array<Keyword, 7> marks{{{"βίντεο", "video"},
                                        {"μόριο", "molecule"},
                                        {"εργαλείο", "tool"},
                                        {"περιεχόμενα", "contents"},
                                        {"λήμματα", "entries"},
                                        {"τάξη", "class"},
                                        {"χρονολόγιο", "timeline"}}};
enum Mark : std::size_t { video, molecule, tool, contents, entries, schoolClass, timeline };

bool isBlank(const TextLine& line) { return trimmed(line.text).empty(); }

bool isBoxEnd(const TextLine& line) { return trimmed(line.text) == boxSign; }

/// The index of the line that closes the box that the first line opens; the number of lines when none does.
std::size_t boxEnd(BodyParts::Lines lines) {
    int depth = 0;
    for (std::size_t i = 0; i < lines.size(); ++i) {
        if (isBoxEnd(lines[i])) {
            if (--depth == 0) return i;
        } else if (lines[i].text.starts_with(boxSign)) {
            ++depth;
        }
    }
    return lines.size();
}

std::vector<std::string> boxNames() {
    std::vector<std::string> names;
    for (const Keyword& box : boxes) {
        names.emplace_back(box.greek);
        names.emplace_back(box.english);
    }
    return names;
}

/// What stands between `{{` and `}}` on a line that holds nothing else; empty for other lines.
std::string_view markInside(std::string_view text) {
    if (!text.starts_with("{{") || !text.ends_with("}}")) return {};
    return trimmed(text.substr(2, text.size() - 4));
}

/// The heading of a box; the title is HTML.
std::string titleOf(std::string_view kind, std::string_view title) {
    return std::string(kind).append(title.empty() ? "" : ": ").append(title);
}

bool beginsPart(std::string_view line) {
    const std::string_view text = trimmed(line);
    return text == equationSign || text.starts_with(boxSign) || readFigure(text) ||
           findKeyword(marks, markInside(text)).index < marks.size();
}

}  // namespace

void BodyParts::write(Lines lines, FirstParagraph first) {
    std::vector<TextLine> markdown;
    bool isCode = false;
    while (!lines.empty()) {
        if (isCodeFence(lines.front().text)) isCode = !isCode;
        if (isCode || !beginsPart(lines.front().text)) {
            markdown.push_back(lines.front());
            lines = lines.subspan(1);
            continue;
        }
        first = writeMarkdown(markdown, first);
        lines = lines.subspan(std::min(writePart(lines), lines.size()));
    }
    writeMarkdown(markdown, first);
}

FirstParagraph BodyParts::writeMarkdown(std::vector<TextLine>& markdown, FirstParagraph first) {
    const bool hasText = !std::ranges::all_of(markdown, isBlank);
    if (hasText) writeBlocks(markdown, first, context_, page_, lines_, diagnostics_);
    markdown.clear();
    return hasText ? FirstParagraph::plain : first;
}

std::size_t BodyParts::writePart(Lines lines) {
    const TextLine& line = lines.front();
    const std::string_view text = trimmed(line.text);
    if (text == equationSign) return writeEquation(lines);
    if (text.starts_with(boxSign)) return writeBox(lines);
    if (const auto figure = readFigure(text)) {
        writeFigure(*figure, line);
    } else {
        writeMark(markInside(text), line);
    }
    return 1;
}

std::size_t BodyParts::writeEquation(Lines lines) {
    std::size_t end = 1;
    while (end < lines.size() && trimmed(lines[end].text) != equationSign) ++end;
    if (end == lines.size()) diagnostics_.error(lines.front().place, say::equationIsNotClosed);
    lines_.beginLine(lines.front().place);
    lines_.add("<P CLASS=\"equation\">");
    bool needsBreak = false;
    for (const TextLine& line : lines.subspan(1, end - 1)) {
        const std::string_view text = trimmed(line.text);
        if (text.empty()) continue;
        const bool isNote = text.starts_with("//");
        if (needsBreak && !isNote) lines_.add("<BR>");
        lines_.beginLine(line.place);
        lines_.add(isNote ? "<SMALL>" + inlineOf(trimmed(text.substr(2)), line) + "</SMALL>"
                          : formulaOf(text, line));
        needsBreak = !isNote;
    }
    lines_.add("</P>");
    lines_.endLine();
    return end + 1;
}

std::string BodyParts::formulaOf(std::string_view part, const TextLine& line) {
    Formula formula = compileFormula(part);
    if (formula.fault) diagnostics_.error(placeOf(part, line), *formula.fault, {part});
    return std::move(formula.html);
}

std::size_t BodyParts::writeBox(Lines lines) {
    const TextLine& line = lines.front();
    const SourcePlace place = placeOf(trimmed(line.text), line);
    const std::size_t end = boxEnd(lines);
    if (isBoxEnd(line)) {
        diagnostics_.error(place, say::closesNoBox);
        return 1;
    }
    if (end == lines.size()) diagnostics_.error(place, say::boxIsNotClosed);
    const std::string_view words = trimmed(trimmed(line.text).substr(boxSign.size()));
    if (++depth_ > maxBoxes) {
        diagnostics_.error(place, say::nestedTooDeep);
    } else {
        writeBoxOf(words, line, lines.subspan(1, end - 1));
    }
    --depth_;
    return end + 1;
}

void BodyParts::writeBoxOf(std::string_view words, const TextLine& line, Lines inner) {
    const SourcePlace& place = line.place;
    const auto [box, rest] = findKeyword(boxes, words);
    const bool isCard = box == element || box == compound;
    const std::string title = isCard || rest.empty() ? std::string() : inlineOf(rest, line);
    switch (box) {
        case fact:
            return writeTitledBox("fact", title.empty() ? "Το ήξερες;" : title, inner, place);
        case experiment:
            return writeTitledBox("experiment", titleOf("Πείραμα", title), inner, place);
        case example:
            return writeTitledBox("example", titleOf("Παράδειγμα", title), inner, place);
        case caution:
            return writeTitledBox("care", title, inner, place);
        case hint:
            return writeTitledBox("hint", title, inner, place);
        case question:
            return writeQuestion(inner, place);
        case quiz:
            return writeQuiz(inner, place);
        case element:
            return writeCard(context_.elementCard, std::string(rest), inner, placeOf(rest, line));
        case compound:
            return writeCard(context_.compoundCard, std::string(rest), inner, placeOf(rest, line));
        default:
            diagnostics_.error(placeOf(words, line), say::unknownBox, {words})
                .suggestNearest(words, boxNames());
            write(inner, FirstParagraph::plain);
    }
}

void BodyParts::writeTitledBox(std::string_view style, const std::string& title, Lines inner,
                               const SourcePlace& place) {
    lines_.addLine("<DIV CLASS=\"" + std::string(style) + "\">", place);
    if (!title.empty()) lines_.addLine("<H3>" + title + "</H3>", place);
    write(inner, FirstParagraph::plain);
    lines_.addLine("</DIV>", place);
}

void BodyParts::writeQuestion(Lines inner, const SourcePlace& place) {
    const auto isDivider = [](const TextLine& line) { return trimmed(line.text) == answerSign; };
    const auto divider = std::ranges::find_if(inner, isDivider);
    const auto asked = static_cast<std::size_t>(divider - inner.begin());
    if (divider == inner.end()) diagnostics_.error(place, say::questionWithoutAnswer);
    lines_.addLine("<DETAILS CLASS=\"ask\"><SUMMARY>", place);
    write(inner.first(asked), FirstParagraph::plain);
    lines_.addLine("</SUMMARY>", place);
    lines_.addLine("<DIV CLASS=\"answer\">", place);
    if (divider != inner.end()) write(inner.subspan(asked + 1), FirstParagraph::plain);
    lines_.addLine("</DIV></DETAILS>", place);
}

void BodyParts::writeQuiz(Lines inner, const SourcePlace& place) {
    lines_.addLine("{{tool quiz}}", place);
    for (const TextLine& line : inner) {
        const std::string_view text = trimmed(line.text);
        if (text.empty()) continue;
        lines_.addLine(std::string(text.substr(0, 1)) + ' ' + inlineOf(trimmed(text.substr(1)), line),
                       placeOf(text, line));
    }
    lines_.addLine("{{end}}", place);
}

void BodyParts::writeCard(const CardMaker& maker, const std::string& name, Lines inner,
                          const SourcePlace& place) {
    std::vector<CardRow> rows;
    for (const TextLine& line : inner) {
        if (isBlank(line)) continue;
        const std::string_view text = line.text;
        const std::size_t colon = text.find(':');
        if (colon == std::string_view::npos) {
            diagnostics_.error(placeOf(trimmed(text), line), say::notACardRow);
            continue;
        }
        rows.push_back({inlineOf(trimmed(text.substr(0, colon)), line),
                        inlineOf(trimmed(text.substr(colon + 1)), line)});
    }
    const std::string card = maker ? maker(name, rows, place, diagnostics_) : std::string();
    for (std::size_t at = 0; at < card.size();) {
        const std::size_t end = std::min(card.find('\n', at), card.size());
        lines_.addLine(std::string_view(card).substr(at, end - at), place);
        at = end + 1;
    }
}

void BodyParts::writeFigure(const FigureLine& figure, const TextLine& line) {
    const SourcePlace place = placeOf(trimmed(line.text), line);
    if (!figure.unknown.empty())
        diagnostics_.error(placeOf(figure.unknown, line), say::unknownPictureSetting, {figure.unknown});
    if (figure.alternative.empty()) diagnostics_.error(place, say::pictureWithoutWords);
    const auto size = sizeOf(figure, context_.pictures);
    if (!size) return reportPicture(figure.file, placeOf(figure.file, line));
    std::string html = figure.isBeside ? "<DIV CLASS=\"figure side\">" : "<DIV CLASS=\"figure\">";
    html += "<IMG SRC=\"{{data}}images\\" + shownPicture(figure.file) + '"';
    if (size->width > 0 && size->height > 0)
        html += " WIDTH=" + std::to_string(size->width) + " HEIGHT=" + std::to_string(size->height);
    html += " ALT=\"" + escapeHtml(figure.alternative) + "\">";
    lines_.addLine(html, place);
    const std::string caption = inlineOf(figure.caption, line);
    lines_.addLine((caption.empty() ? "" : "<P CLASS=\"caption\">" + caption + "</P>") + "</DIV>", place);
}

void BodyParts::reportPicture(std::string_view file, const SourcePlace& place) {
    std::vector<std::string> names;
    for (const auto& [name, size] : context_.pictures) names.push_back(name);
    diagnostics_.error(place, say::unknownPicture, {file})
        .suggestNearestOr(file, names, say::putFileInto, {"pictures"});
}

void BodyParts::writeMark(std::string_view words, const TextLine& line) {
    const SourcePlace place = placeOf(trimmed(line.text), line);
    const auto [mark, rest] = findKeyword(marks, words);
    if (mark >= contents && !page_.section) {
        diagnostics_.error(place, say::listOutsideSections);
        return;
    }
    switch (mark) {
        case video:
            return writeVideo(rest, line);
        case molecule:
            return writeMolecule(rest, line);
        case contents:
            hasTopicList_ = true;
            return writeList(topicList(context_.content, page_, ListHeading::none), place);
        case entries:
            hasEntryList_ = true;
            return writeList(entryList(context_.content, page_, ListHeading::none), place);
        case schoolClass:
            return writeSchoolYear(rest, placeOf(rest, line));
        case timeline:
            return writeList(timeLine(context_.content), place);
        default:
            lines_.addLine("{{tool " + std::string(rest) + "}}", place);
    }
}

void BodyParts::writeList(const HtmlList& list, const SourcePlace& place) {
    for (const std::string& line : list) lines_.addLine(line, place);
}

void BodyParts::writeSchoolYear(std::string_view year, const SourcePlace& place) {
    if (const auto found = schoolYearNamed(platform::fromUtf8(year)))
        return writeList(schoolYearList(context_.content, found->year), place);
    diagnostics_.error(place, say::unknownSchoolYear, {year});
}

BodyParts::Captioned BodyParts::captionedOf(std::string_view words, const TextLine& line) {
    const std::size_t quote = std::min(words.find('"'), words.size());
    std::string_view caption = words.substr(quote);
    if (caption.size() > 1 && caption.ends_with('"')) {
        caption = caption.substr(1, caption.size() - 2);
    } else if (!caption.empty()) {
        diagnostics_.error(placeOf(caption, line), say::captionIsNotClosed);
    }
    return {trimmed(words.substr(0, quote)), inlineOf(caption, line)};
}

void BodyParts::writeMolecule(std::string_view words, const TextLine& line) {
    auto [name, caption] = captionedOf(words, line);
    moleculeCaption_ = std::move(caption);
    lines_.addLine("{{molecule " + std::string(name) + "}}", placeOf(words, line));
}

void BodyParts::writeVideo(std::string_view words, const TextLine& line) {
    const SourcePlace place = placeOf(words, line);
    const auto [name, text] = captionedOf(words, line);
    lines_.addLine("<DIV CLASS=\"film\">", place);
    lines_.addLine("{{video " + std::string(name) + "}}", place);
    const std::string link = page_.section ? "<A HREF=\"{{enlarge}}\">Μεγέθυνση</A>" : "";
    lines_.addLine("<P CLASS=\"caption\">" + text + (text.empty() ? "" : " ") + link + "</P>", place);
    lines_.addLine("</DIV>", place);
}

std::string BodyParts::inlineOf(std::string_view part, const TextLine& line) {
    if (part.empty()) return {};
    return inlineHtml({std::string(part), placeOf(part, line)}, context_, page_, diagnostics_);
}

}  // namespace contentc
