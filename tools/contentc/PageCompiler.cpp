#include "tools/contentc/PageCompiler.h"

#include <algorithm>
#include <optional>

#include "tools/contentc/MarkMessages.h"
#include "tools/contentc/MarkupCompiler.h"
#include "tools/contentc/ToolCompiler.h"
#include "tools/contentc/source/EscapeHtml.h"
#include "tools/contentc/source/HtmlCheck.h"
#include "tools/contentc/source/MoleculeLayout.h"

namespace contentc {
namespace {

// The program takes an address of eight characters that ends in "a.htm" for a link to the enlarged view, and
// looks at nothing else of it. So this one works wherever the data folder lies.
constexpr const char* enlargedViewAddress = "a:\\a.htm";
constexpr std::string_view videoMarker = "\x04..";
// A small video of 320 × 240 pixels with its control strip of 18.
constexpr std::string_view videoAttributes = "WIDTH=320 HEIGHT=258 AUTOPLAY=FALSE";

class PageCompilation {
  public:
    PageCompilation(const PageSource& page, References& references, Diagnostics& diagnostics)
        : page_(page), references_(references), diagnostics_(diagnostics) {}

    std::vector<TextLine> compile(const PageScaffold& scaffold) {
        const std::vector<TextLine> body = compileBody();
        MarkupCompiler markup(scaffoldMarks(), isPrepared(), references_, diagnostics_);
        std::vector<TextLine> lines;
        lines.reserve(scaffold.head.size() + body.size() + scaffold.foot.size());
        for (const TextLine& line : scaffold.head) lines.push_back(markup.compile(withCaption(line)));
        lines.insert(lines.end(), body.begin(), body.end());
        for (const TextLine& line : scaffold.foot) lines.push_back(markup.compile(withCaption(line)));
        return lines;
    }

  private:
    bool isPrepared() const { return page_.kind != PageKind::plain; }
    bool hasMoleculeScaffold() const { return page_.scaffold == PageTemplate::molecule; }

    MarkValues bodyMarks() const {
        // A plain page lies in the data folder itself, so its relative addresses start there.
        MarkValues marks{{"data", isPrepared() ? std::string(dataFolderMarker) : ""}};
        if (isPrepared()) marks["enlarge"] = enlargedViewAddress;
        return marks;
    }

    MarkValues scaffoldMarks() const {
        MarkValues marks = bodyMarks();
        marks["title"] = escapeHtml(page_.title.text);
        if (page_.section) {
            marks["section"] = page_.section->key;
            marks["sectionname"] = page_.section->displayName;
        }
        if (hasMoleculeScaffold()) {
            marks["molfile"] = std::string(moleculeMarker) + "mol\\" + molecule_.value_or("") + ".mol";
        }
        return marks;
    }

    /// The caption's own marks and links are compiled with the line.
    TextLine withCaption(TextLine line) const {
        constexpr std::string_view mark = "{{moleculecaption}}";
        const std::size_t at = hasMoleculeScaffold() ? line.text.find(mark) : line.text.npos;
        if (at == line.text.npos) return line;
        const std::string_view gap = page_.moleculeCaption.empty() ? "" : " ";
        line.text.replace(at, mark.size(), page_.moleculeCaption + std::string(gap));
        return line;
    }

    std::vector<TextLine> compileBody() {
        MarkupCompiler markup(bodyMarks(), isPrepared(), references_, diagnostics_);
        std::vector<TextLine> lines;
        for (auto line = page_.body.begin(); line != page_.body.end(); ++line) {
            if (const auto video = nameInMarkLine(line->text, "video")) {
                lines.push_back(videoLine(*video, line->place));
            } else if (const auto molecule = nameInMarkLine(line->text, "molecule")) {
                setMolecule(*molecule, line->place);
            } else if (const auto tool = readToolLine(line->text)) {
                line = addTool(*tool, line, markup, lines);
            } else {
                lines.push_back(markup.compile(*line));
            }
        }
        return lines;
    }

    TextLine videoLine(std::string_view name, const SourcePlace& place) {
        if (!isPrepared()) diagnostics_.error(place, say::noVideoHere);
        references_.videos.push_back({place, std::string(name)});
        std::string line = "<EMBED SRC=\"";
        line.append(videoMarker).append("video\\").append(name).append(".webm\" ");
        return {line.append(videoAttributes) + ">", place};
    }

    using Line = std::vector<TextLine>::const_iterator;

    /// Adds the tool of a line; the result is the last line that goes with it.
    Line addTool(const ToolLine& tool, Line line, MarkupCompiler& markup, std::vector<TextLine>& lines) {
        const SourcePlace place = line->place;
        if (!isPrepared()) diagnostics_.error(place, say::noToolHere);
        noteTool(tool, place);
        lines.push_back({openTool(tool), place});
        if (tool.name == quizTool) line = addQuiz(line, markup, lines);
        lines.push_back({closeTool(tool), place});
        return line;
    }

    void noteTool(const ToolLine& tool, const SourcePlace& place) {
        ToolUse use{place, tool.name, {}};
        for (const auto& [name, value] : tool.settings) use.settings.push_back(name);
        references_.tools.push_back(std::move(use));
    }

    Line addQuiz(Line line, MarkupCompiler& markup, std::vector<TextLine>& lines) {
        const auto isEnd = [](const TextLine& next) { return trimmed(next.text) == endLine; };
        const auto end = std::find_if(line + 1, page_.body.end(), isEnd);
        if (end == page_.body.end()) {
            diagnostics_.error(line->place, say::quizWithoutBox);
            return end - 1;
        }
        const auto quiz = compileQuiz({line + 1, end}, line->place, markup, diagnostics_);
        lines.insert(lines.end(), quiz.begin(), quiz.end());
        return end;
    }

    void setMolecule(std::string_view name, const SourcePlace& place) {
        if (!isPrepared()) diagnostics_.error(place, say::noMoleculeHere);
        if (molecule_) diagnostics_.error(place, say::secondMolecule);
        references_.molecules.push_back({place, std::string(name)});
        molecule_ = name;
    }

    const PageSource& page_;
    References& references_;
    Diagnostics& diagnostics_;
    std::optional<std::string> molecule_;
};

std::string joinLines(const std::vector<TextLine>& lines, Diagnostics& diagnostics) {
    std::string bytes;
    for (const TextLine& line : lines) {
        if (line.text.size() > maxPageLine) {
            diagnostics.error(line.place, say::pageLineIsTooLong, {line.text.size(), maxPageLine});
        }
        bytes.append(line.text).append("\r\n");
    }
    return bytes;
}

}  // namespace

std::string compilePage(const PageSource& page, const PageScaffold& scaffold, References& references,
                        Diagnostics& diagnostics) {
    const std::vector<TextLine> lines = PageCompilation(page, references, diagnostics).compile(scaffold);
    const bool hasScaffold = !scaffold.head.empty();
    if (page.scaffold == PageTemplate::molecule && hasScaffold)
        checkMoleculeLayout(lines, page.place, diagnostics);
    checkHtml(lines, diagnostics);
    return joinLines(lines, diagnostics);
}

}  // namespace contentc
