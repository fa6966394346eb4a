#pragma once

#include <optional>
#include <span>

#include "tools/contentc/markdown/BlockWriter.h"
#include "tools/contentc/markdown/Figure.h"
#include "tools/contentc/markdown/PageLists.h"

namespace contentc {

/// Goes through the lines of a body, writes what stands on lines of its own (boxes, equations, pictures,
/// `{{…}}`), and leaves the rest to Markdown.
class BodyParts {
  public:
    BodyParts(const BodyContext& context, const PageSource& page, HtmlLines& lines, Diagnostics& diagnostics)
        : context_(context), page_(page), lines_(lines), diagnostics_(diagnostics) {}

    using Lines = std::span<const TextLine>;

    void write(Lines lines, FirstParagraph first);

    /// Whether the author has put the list of topics or of entries into the text.
    bool hasTopicList() const { return hasTopicList_; }
    bool hasEntryList() const { return hasEntryList_; }

    /// What stands below the molecule, as HTML in UTF-8, maybe empty; nothing when no molecule has been
    /// written. With one, the page needs a scaffold of its own.
    const std::optional<std::string>& moleculeCaption() const { return moleculeCaption_; }

  private:
    /// The result says how the next paragraph is to be written.
    FirstParagraph writeMarkdown(std::vector<TextLine>& markdown, FirstParagraph first);
    /// Writes the part that begins with the first line; the result is the number of its lines.
    std::size_t writePart(Lines lines);
    std::size_t writeEquation(Lines lines);
    std::size_t writeBox(Lines lines);
    void writeBoxOf(std::string_view words, const TextLine& line, Lines inner);
    void writeTitledBox(std::string_view style, const std::string& title, Lines inner,
                        const SourcePlace& place);
    void writeQuestion(Lines inner, const SourcePlace& place);
    void writeQuiz(Lines inner, const SourcePlace& place);
    void writeCard(const CardMaker& maker, const std::string& name, Lines inner, const SourcePlace& place);
    void writeFigure(const FigureLine& figure, const TextLine& line);
    void reportPicture(std::string_view file, const SourcePlace& place);
    void writeMark(std::string_view words, const TextLine& line);
    void writeList(const HtmlList& list, const SourcePlace& place);
    void writeSchoolYear(std::string_view year, const SourcePlace& place);
    void writeMolecule(std::string_view words, const TextLine& line);
    void writeVideo(std::string_view words, const TextLine& line);
    /// A file's name and the caption behind it in quotes.
    struct Captioned {
        std::string_view name;
        std::string caption;  ///< as HTML; empty without one
    };
    Captioned captionedOf(std::string_view words, const TextLine& line);
    /// A part of a line of the source as HTML.
    std::string inlineOf(std::string_view part, const TextLine& line);
    std::string formulaOf(std::string_view part, const TextLine& line);

    const BodyContext& context_;
    const PageSource& page_;
    HtmlLines& lines_;
    Diagnostics& diagnostics_;
    /// How many boxes the lines being written stand in.
    int depth_ = 0;
    std::optional<std::string> moleculeCaption_;
    bool hasTopicList_ = false;
    bool hasEntryList_ = false;
};

}  // namespace contentc
