#include "tools/contentc/ToolCompiler.h"

#include <algorithm>

#include "tools/contentc/EscapeHtml.h"

namespace contentc {
namespace {

constexpr std::string_view kToolMark = "{{tool ";

bool isNameCharacter(char c) { return (c >= 'a' && c <= 'z') || (c >= '0' && c <= '9') || c == '-'; }

/// Takes a name off the front; empty when there is none.
std::string takeName(std::string_view& rest) {
    const auto end = std::ranges::find_if_not(rest, isNameCharacter);
    const auto length = static_cast<std::size_t>(end - rest.begin());
    std::string name(rest.substr(0, length));
    rest.remove_prefix(length);
    return name;
}

/// Takes `name="value"` off the front.
std::optional<std::pair<std::string, std::string>> takeSetting(std::string_view& rest) {
    std::string name = takeName(rest);
    if (name.empty() || !rest.starts_with("=\"")) return std::nullopt;
    rest.remove_prefix(2);
    const std::size_t end = rest.find('"');
    if (end == std::string_view::npos) return std::nullopt;
    std::string value(rest.substr(0, end));
    rest.remove_prefix(end + 1);
    return std::pair{std::move(name), std::move(value)};
}

class QuizCompilation {
  public:
    QuizCompilation(MarkupCompiler& markup, Diagnostics& diagnostics)
        : m_markup(markup), m_diagnostics(diagnostics) {}

    std::vector<TextLine> compile(const std::vector<TextLine>& lines, const SourcePlace& place) {
        for (const TextLine& line : lines) {
            if (!trimmed(line.text).empty()) compileLine(line);
        }
        endQuestion();
        if (m_questions == 0) m_diagnostics.error(place, "a quiz without questions");
        return std::move(m_html);
    }

  private:
    void compileLine(const TextLine& line) {
        const std::string_view text = trimmed(line.text);
        const char kind = text.front();
        const std::string inner = m_markup.compile({std::string(trimmed(text.substr(1))), line.place}).text;
        if (kind == '?') {
            beginQuestion(inner, line.place);
        } else if (m_questions == 0) {
            m_diagnostics.error(line.place, "a quiz begins with a question: '? …'");
        } else if (kind == '-' || kind == '+') {
            addAnswer(inner, kind == '+', line.place);
        } else if (kind == '>' && m_answers > 0) {
            add("<P CLASS=\"why\">" + inner + "</P>", line.place);
        } else if (kind == '!') {
            m_explanation = "<P CLASS=\"explanation\">" + inner + "</P>";
        } else {
            m_diagnostics.error(line.place, "a line of a quiz begins with '?', '-', '+', '>' or '!'");
        }
    }

    void beginQuestion(const std::string& text, const SourcePlace& place) {
        endQuestion();
        ++m_questions;
        m_place = place;
        m_answers = m_rightAnswers = 0;
        add("<DIV CLASS=\"question\"><P CLASS=\"asked\">" + text + "</P><UL>", place);
    }

    void addAnswer(const std::string& text, bool right, const SourcePlace& place) {
        ++m_answers;
        m_rightAnswers += right ? 1 : 0;
        const std::string begin = right ? "<LI CLASS=\"right\">" : "<LI>";
        add(begin + "<SPAN CLASS=\"answer\">" + text + "</SPAN>", place);
    }

    void endQuestion() {
        if (m_questions == 0) return;
        if (m_answers < 2)
            m_diagnostics.error(m_place, "a question needs two answers or more");
        else if (m_rightAnswers != 1)
            m_diagnostics.error(m_place, "a question needs one right answer: '+ …'");
        add("</UL>" + m_explanation + "</DIV>", m_place);
        m_explanation.clear();
    }

    void add(std::string html, const SourcePlace& place) { m_html.push_back({std::move(html), place}); }

    MarkupCompiler& m_markup;
    Diagnostics& m_diagnostics;
    std::vector<TextLine> m_html;
    int m_questions = 0;

    // The question being compiled.
    SourcePlace m_place;
    int m_answers = 0;
    int m_rightAnswers = 0;
    std::string m_explanation;
};

}  // namespace

std::optional<ToolLine> readToolLine(std::string_view line) {
    line = trimmed(line);
    if (!line.starts_with(kToolMark) || !line.ends_with("}}")) return std::nullopt;
    std::string_view rest = trimmed(line.substr(kToolMark.size(), line.size() - kToolMark.size() - 2));
    ToolLine tool{takeName(rest), {}};
    if (tool.name.empty()) return std::nullopt;
    while (!rest.empty()) {
        if (!rest.starts_with(' ')) return std::nullopt;
        rest = trimmed(rest);
        auto setting = takeSetting(rest);
        if (!setting) return std::nullopt;
        tool.settings.push_back(std::move(*setting));
    }
    return tool;
}

std::string openTool(const ToolLine& tool) {
    std::string html = "<DIV CLASS=\"tool\" DATA-TOOL=\"" + tool.name + '"';
    for (const auto& [name, value] : tool.settings) html += " DATA-" + name + "=\"" + escapeHtml(value) + '"';
    return html + '>';
}

std::string closeTool(const ToolLine& tool) {
    const std::string folder(kDataFolderMarker);
    return "</DIV><LINK REL=\"stylesheet\" HREF=\"" + folder + "tools\\shared\\style.css\">" +
           "<SCRIPT TYPE=\"module\" SRC=\"" + folder + "tools\\" + tool.name + "\\face.js\"></SCRIPT>";
}

std::vector<TextLine> compileQuiz(const std::vector<TextLine>& lines, const SourcePlace& place,
                                  MarkupCompiler& markup, Diagnostics& diagnostics) {
    return QuizCompilation(markup, diagnostics).compile(lines, place);
}

}  // namespace contentc
