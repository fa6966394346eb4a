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

/// Reads a line that is nothing but a tool's mark. Nothing for any other line, and for one that is malformed.
std::optional<ToolLine> readToolLine(std::string_view line);

/// What a finished page has before and behind a tool's own content: the box that its script fills.
std::string openTool(const ToolLine& tool);
std::string closeTool(const ToolLine& tool);

/// The tool whose questions stand below its line, as far as a line `{{end}}`.
inline constexpr std::string_view quizTool = "quiz";
inline constexpr std::string_view endLine = "{{end}}";

/// Turns the lines of a quiz into HTML that its script makes questions of. A question begins with `?`, an
/// answer with `-`, the right one with `+`; `>` tells why the answer above it is right or wrong, and `!`
/// explains the question. Faults are reported, one for each question at most.
std::vector<TextLine> compileQuiz(const std::vector<TextLine>& lines, const SourcePlace& place,
                                  MarkupCompiler& markup, Diagnostics& diagnostics);

}  // namespace contentc
