#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "tools/contentc/MarkupCompiler.h"
#include "tools/contentc/source/SourceText.h"

namespace contentc {

/// A line `{{tool NAME setting="value" …}}`.
struct ToolLine {
    std::string name;
    std::vector<std::pair<std::string, std::string>> settings;
};

/// Reads a line that consists of a tool's mark only. Empty for every other line and for a malformed mark.
std::optional<ToolLine> readToolLine(std::string_view line);

/// The HTML before and after a tool's content: the element that the tool's script fills.
std::string openTool(const ToolLine& tool);
std::string closeTool(const ToolLine& tool);

/// The tool whose questions follow its line, up to a line `{{end}}`.
inline constexpr std::string_view quizTool = "quiz";
inline constexpr std::string_view endLine = "{{end}}";

/// Turns the lines of a quiz into HTML from which its script makes the questions. A question begins with `?`,
/// a wrong answer with `-` and the right one with `+`; `>` explains the answer above it, `!` the question.
/// Reports at most one error for each question.
std::vector<TextLine> compileQuiz(const std::vector<TextLine>& lines, const SourcePlace& place,
                                  MarkupCompiler& markup, Diagnostics& diagnostics);

}  // namespace contentc
