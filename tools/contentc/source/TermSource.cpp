#include "tools/contentc/source/TermSource.h"

#include <algorithm>

namespace contentc {
namespace {

constexpr std::size_t keyLength = 8;
// The program's buffers: the rest of a longer first line would become part of the definition, and a longer
// line further down would become two.
constexpr std::size_t maxTerm = 48;
constexpr std::size_t maxLine = 4997;
// The program shows no definition shorter than this.
constexpr std::size_t minDefinition = 5;
// Between two lines of the text shown stand CR and LF.
constexpr std::size_t lineEndSize = 2;

void checkDefinition(const TermSource& term, Diagnostics& diagnostics) {
    std::size_t shown = 0;
    int line = 1;
    for (const std::string& text : term.definition) {
        ++line;
        shown += text.size() + (shown > 0 ? lineEndSize : 0);
        if (text.size() <= maxLine) continue;
        diagnostics.error({term.place.file, line},
                          "line is longer than " + std::to_string(maxLine) + " bytes");
    }
    if (shown < minDefinition)
        diagnostics.error(term.place, "definition is missing or too short to be shown");
}

}  // namespace

bool isGlossaryKey(std::string_view text) {
    return text.size() == keyLength &&
           std::ranges::all_of(text, [](char c) { return (c >= 'a' && c <= 'z') || (c >= '0' && c <= '9'); });
}

std::optional<TermSource> readTerm(const SourceFile& file, Diagnostics& diagnostics) {
    std::vector<TextLine> lines = readLines(file, diagnostics);
    if (!isGlossaryKey(file.stem())) {
        diagnostics.error(file.place(),
                          "glossary key '" + file.stem() + "' is not 8 characters of a-z and 0-9");
    }
    if (lines.empty() || trimmed(lines.front().text).empty()) {
        diagnostics.error(file.place(), "the first line must be the term");
        return std::nullopt;
    }
    while (trimmed(lines.back().text).empty()) lines.pop_back();

    TermSource term{file.place(), file.stem(), lines.front().text, {}};
    for (std::size_t i = 1; i < lines.size(); ++i) term.definition.push_back(std::move(lines[i].text));
    if (term.term.size() > maxTerm) {
        diagnostics.error(term.place, "term is longer than " + std::to_string(maxTerm) + " bytes");
    }
    checkDefinition(term, diagnostics);
    return term;
}

std::string glossaryFile(const TermSource& term) {
    std::string bytes = term.term + "\r\n";
    for (const std::string& line : term.definition) bytes += line + "\r\n";
    return bytes;
}

}  // namespace contentc
