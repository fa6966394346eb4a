#include "tools/contentc/ToolCompiler.h"

#include <algorithm>

#include "tools/contentc/MarkMessages.h"
#include "tools/contentc/source/EscapeHtml.h"

namespace contentc {
namespace {

constexpr std::string_view toolMark = "{{tool ";

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
        : markup_(markup), diagnostics_(diagnostics) {}

    std::vector<TextLine> compile(const std::vector<TextLine>& lines, const SourcePlace& place) {
        for (const TextLine& line : lines) {
            if (!trimmed(line.text).empty()) compileLine(line);
        }
        endQuestion();
        if (questions_ == 0) diagnostics_.error(place, say::quizWithoutQuestions);
        return std::move(html_);
    }

  private:
    void compileLine(const TextLine& line) {
        const std::string_view text = trimmed(line.text);
        const char kind = text.front();
        const std::string inner = markup_.compile({std::string(trimmed(text.substr(1))), line.place}).text;
        if (kind == '?') {
            beginQuestion(inner, line.place);
        } else if (questions_ == 0) {
            diagnostics_.error(line.place, say::quizBegins);
        } else if (kind == '-' || kind == '+') {
            addAnswer(inner, kind == '+', line.place);
        } else if (kind == '>' && answers_ > 0) {
            add("<P CLASS=\"why\">" + inner + "</P>", line.place);
        } else if (kind == '!') {
            explanation_ = "<P CLASS=\"explanation\">" + inner + "</P>";
        } else {
            diagnostics_.error(line.place, say::notAQuizLine);
        }
    }

    void beginQuestion(const std::string& text, const SourcePlace& place) {
        endQuestion();
        ++questions_;
        place_ = place;
        answers_ = rightAnswers_ = 0;
        add(R"(<DIV CLASS="question"><P CLASS="asked">)" + text + "</P><UL>", place);
    }

    void addAnswer(const std::string& text, bool right, const SourcePlace& place) {
        ++answers_;
        rightAnswers_ += right ? 1 : 0;
        const std::string begin = right ? "<LI CLASS=\"right\">" : "<LI>";
        add(begin + "<SPAN CLASS=\"answer\">" + text + "</SPAN>", place);
    }

    void endQuestion() {
        if (questions_ == 0) return;
        if (answers_ < 2)
            diagnostics_.error(place_, say::tooFewAnswers);
        else if (rightAnswers_ != 1)
            diagnostics_.error(place_, say::oneRightAnswer);
        add("</UL>" + explanation_ + "</DIV>", place_);
        explanation_.clear();
    }

    void add(std::string html, const SourcePlace& place) { html_.push_back({std::move(html), place}); }

    MarkupCompiler& markup_;
    Diagnostics& diagnostics_;
    std::vector<TextLine> html_;
    int questions_ = 0;

    // The question being compiled.
    SourcePlace place_;
    int answers_ = 0;
    int rightAnswers_ = 0;
    std::string explanation_;
};

}  // namespace

std::optional<ToolLine> readToolLine(std::string_view line) {
    line = trimmed(line);
    if (!line.starts_with(toolMark) || !line.ends_with("}}")) return std::nullopt;
    std::string_view rest = trimmed(line.substr(toolMark.size(), line.size() - toolMark.size() - 2));
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
    std::string html = R"(<DIV CLASS="tool" DATA-TOOL=")" + tool.name + '"';
    for (const auto& [name, value] : tool.settings) html += " DATA-" + name + "=\"" + escapeHtml(value) + '"';
    return html + '>';
}

std::string closeTool(const ToolLine& tool) {
    const std::string folder(dataFolderMarker);
    return R"(</DIV><LINK REL="stylesheet" HREF=")" + folder + R"(tools\shared\style.css">)" +
           R"(<SCRIPT TYPE="module" SRC=")" + folder + "tools\\" + tool.name + "\\face.js\"></SCRIPT>";
}

std::vector<TextLine> compileQuiz(const std::vector<TextLine>& lines, const SourcePlace& place,
                                  MarkupCompiler& markup, Diagnostics& diagnostics) {
    return QuizCompilation(markup, diagnostics).compile(lines, place);
}

}  // namespace contentc
