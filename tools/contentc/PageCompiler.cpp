#include "tools/contentc/PageCompiler.h"

#include <algorithm>
#include <optional>

#include "tools/contentc/EscapeHtml.h"
#include "tools/contentc/MarkupCompiler.h"
#include "tools/contentc/ToolCompiler.h"
#include "tools/contentc/source/MoleculeLayout.h"

namespace contentc {
namespace {

constexpr std::string_view kVideoMarker = "\x04..";
// A small video of 320 × 240 pixels with its control strip of 18.
constexpr std::string_view kVideoAttributes = "WIDTH=320 HEIGHT=258 AUTOPLAY=FALSE";
constexpr std::string_view kMoleculeMarker = "\x03..";

class PageCompilation {
  public:
    PageCompilation(const PageSource& page, References& references, Diagnostics& diagnostics)
        : m_page(page), m_references(references), m_diagnostics(diagnostics) {}

    std::vector<TextLine> compile(const PageScaffold& scaffold) {
        const std::vector<TextLine> body = compileBody();
        MarkupCompiler markup(scaffoldMarks(), isPrepared(), m_references, m_diagnostics);
        std::vector<TextLine> lines;
        for (const TextLine& line : scaffold.head) lines.push_back(markup.compile(line));
        lines.insert(lines.end(), body.begin(), body.end());
        for (const TextLine& line : scaffold.foot) lines.push_back(markup.compile(line));
        return lines;
    }

  private:
    bool isPrepared() const { return m_page.kind != PageKind::Plain; }

    MarkValues bodyMarks() const {
        // A plain page lies in the data folder itself, so that its relative addresses start there.
        return {{"data", isPrepared() ? std::string(kDataFolderMarker) : ""}};
    }

    MarkValues scaffoldMarks() const {
        MarkValues marks = bodyMarks();
        marks["title"] = escapeHtml(m_page.title.text);
        if (m_page.section) {
            marks["section"] = m_page.section->key;
            marks["sectionname"] = m_page.section->displayName;
        }
        if (m_page.scaffold == PageTemplate::Molecule) {
            marks["molfile"] = std::string(kMoleculeMarker) + "mol\\" + m_molecule.value_or("") + ".mol";
        }
        return marks;
    }

    std::vector<TextLine> compileBody() {
        MarkupCompiler markup(bodyMarks(), isPrepared(), m_references, m_diagnostics);
        std::vector<TextLine> lines;
        for (auto line = m_page.body.begin(); line != m_page.body.end(); ++line) {
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
        if (m_page.scaffold == PageTemplate::Molecule && !m_molecule) {
            m_diagnostics.error(m_page.place,
                                "a page of template 'molecule' needs a line '{{molecule NAME}}'");
        }
        return lines;
    }

    TextLine videoLine(std::string_view name, const SourcePlace& place) {
        if (!isPrepared()) m_diagnostics.error(place, "a video works only on a page of a section");
        m_references.videos.push_back({place, std::string(name)});
        std::string line = "<EMBED SRC=\"";
        line.append(kVideoMarker).append("video\\").append(name).append(".webm\" ");
        return {line.append(kVideoAttributes) + ">", place};
    }

    using Line = std::vector<TextLine>::const_iterator;

    /// Adds the tool of a line; the result is the last line that goes with it.
    Line addTool(const ToolLine& tool, Line line, MarkupCompiler& markup, std::vector<TextLine>& lines) {
        const SourcePlace place = line->place;
        if (!isPrepared()) m_diagnostics.error(place, "a tool works only on a page of a section");
        noteTool(tool, place);
        lines.push_back({openTool(tool), place});
        if (tool.name == kQuizTool) line = addQuiz(line, markup, lines);
        lines.push_back({closeTool(tool), place});
        return line;
    }

    void noteTool(const ToolLine& tool, const SourcePlace& place) {
        ToolUse use{place, tool.name, {}};
        for (const auto& [name, value] : tool.settings) use.settings.push_back(name);
        m_references.tools.push_back(std::move(use));
    }

    Line addQuiz(Line line, MarkupCompiler& markup, std::vector<TextLine>& lines) {
        const auto isEnd = [](const TextLine& next) { return trimmed(next.text) == kEndLine; };
        const Line end = std::find_if(line + 1, m_page.body.end(), isEnd);
        if (end == m_page.body.end()) {
            m_diagnostics.error(line->place, "the quiz has no line '{{end}}'");
            return end - 1;
        }
        const auto quiz = compileQuiz({line + 1, end}, line->place, markup, m_diagnostics);
        lines.insert(lines.end(), quiz.begin(), quiz.end());
        return end;
    }

    void setMolecule(std::string_view name, const SourcePlace& place) {
        if (m_page.scaffold != PageTemplate::Molecule) {
            m_diagnostics.error(place, "a molecule needs the header line 'template: molecule'");
        } else if (m_molecule) {
            m_diagnostics.error(place, "a second molecule on the page");
        }
        m_references.molecules.push_back({place, std::string(name)});
        m_molecule = name;
    }

    const PageSource& m_page;
    References& m_references;
    Diagnostics& m_diagnostics;
    std::optional<std::string> m_molecule;
};

std::string joinLines(const std::vector<TextLine>& lines, Diagnostics& diagnostics) {
    std::string bytes;
    for (const TextLine& line : lines) {
        if (line.text.size() > kLongestPageLine) {
            diagnostics.error(line.place, "line has " + std::to_string(line.text.size()) +
                                              " bytes, at most " + std::to_string(kLongestPageLine) +
                                              " are allowed");
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
    if (page.scaffold == PageTemplate::Molecule && hasScaffold)
        checkMoleculeLayout(lines, page.place, diagnostics);
    return joinLines(lines, diagnostics);
}

}  // namespace contentc
