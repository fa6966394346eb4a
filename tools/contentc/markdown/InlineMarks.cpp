#include "tools/contentc/markdown/InlineMarks.h"

#include <algorithm>

#include "platform/text/Utf8.h"
#include "tools/contentc/markdown/BodyMessages.h"
#include "tools/contentc/markdown/Typography.h"

namespace contentc {
namespace {

/// The place of a byte of a line, which may be a part of a line of the source.
SourcePlace placeAt(const TextLine& line, std::size_t offset) {
    SourcePlace place = line.place;
    place.column = std::max(place.column, 1) - 1 + columnAt(line.text, offset);
    return place;
}

class MarkFinder {
  public:
    MarkFinder(MarkedText& marked, Diagnostics& diagnostics) : marked_(marked), diagnostics_(diagnostics) {}

    void readLine(const TextLine& line) {
        line_ = &line;
        rest_ = line.text;
        while (!rest_.empty()) step();
        marked_.text.push_back('\n');
    }

  private:
    void step() {
        if (rest_.front() == '\\' && rest_.size() > 1) {
            keep(2);
        } else if (rest_.front() == '`') {
            keepCode();
        } else if (rest_.front() == '$') {
            takeFormula();
        } else if (rest_.starts_with("[[")) {
            takeTerm();
        } else if (rest_.starts_with("](")) {
            takeTarget();
        } else {
            keep(std::min(rest_.find_first_of("\\`$[]", 1), rest_.size()));
        }
    }

    void keep(std::size_t length) {
        marked_.text.append(rest_.substr(0, length));
        rest_.remove_prefix(length);
    }

    void keepCode() {
        const std::size_t ticks = std::min(rest_.find_first_not_of('`'), rest_.size());
        const std::size_t end = rest_.find(rest_.substr(0, ticks), ticks);
        keep(end == std::string_view::npos ? ticks : end + ticks);
    }

    void takeFormula() {
        std::size_t end = 1;
        while (end < rest_.size() && rest_[end] != '$') end += rest_[end] == '\\' ? 2 : 1;
        if (end >= rest_.size()) {
            fail(say::formulaIsNotClosed);
            return keep(1);
        }
        add({InlineMark::Kind::formula, std::string(rest_.substr(1, end - 1)), {}, here(), {}}, end + 1);
    }

    void takeTerm() {
        constexpr std::size_t bracketSize = 2;
        const std::size_t end = rest_.find("]]");
        if (end == std::string_view::npos) {
            fail(say::termIsNotClosed);
            return keep(bracketSize);
        }
        const std::string_view inner = rest_.substr(bracketSize, end - bracketSize);
        const std::size_t bar = inner.find('|');
        std::string_view shown = inner.substr(0, bar);
        // In tables Markdown wants a backslash before the bar.
        if (bar != std::string_view::npos && shown.ends_with('\\')) shown.remove_suffix(1);
        const std::string words(trimmed(shown));
        const SourcePlace wordsPlace =
            placeAt(*line_, static_cast<std::size_t>(inner.data() - line_->text.data()) +
                                inner.find_first_not_of(" \t"));
        const std::string term(bar == std::string_view::npos ? words : trimmed(inner.substr(bar + 1)));
        if (words.empty()) fail(say::termWithoutWords);
        add({InlineMark::Kind::term, words, term, here(), wordsPlace}, end + bracketSize);
    }

    void takeTarget() {
        const bool hasBrackets = rest_.starts_with("](<");
        const std::size_t begin = hasBrackets ? 3 : 2;
        const std::size_t end = rest_.find(hasBrackets ? ">)" : ")", begin);
        if (end == std::string_view::npos) {
            fail(say::addressIsNotClosed);
            return keep(begin);
        }
        const SourcePlace place = placeAt(*line_, line_->text.size() - rest_.size() + begin);
        const std::string address(trimmed(rest_.substr(begin, end - begin)));
        if (address.empty()) fail(say::linkWithoutAddress);
        marked_.text.append("](");
        add({InlineMark::Kind::target, address, {}, place, {}}, end + (hasBrackets ? 2 : 1));
        marked_.text.append(")");
    }

    void add(InlineMark mark, std::size_t length) {
        platform::appendUtf8(marked_.text, firstMark + static_cast<char32_t>(marked_.marks.size()));
        marked_.marks.push_back(std::move(mark));
        rest_.remove_prefix(length);
    }

    SourcePlace here() const { return placeAt(*line_, line_->text.size() - rest_.size()); }

    void fail(const Message& message) { diagnostics_.error(here(), message); }

    MarkedText& marked_;
    Diagnostics& diagnostics_;
    const TextLine* line_ = nullptr;
    std::string_view rest_;
};

}  // namespace

bool isCodeFence(std::string_view line) {
    line = trimmed(line);
    return line.starts_with("```") || line.starts_with("~~~");
}

MarkedText markInlines(const std::vector<TextLine>& lines, Diagnostics& diagnostics) {
    MarkedText marked;
    MarkFinder finder(marked, diagnostics);
    bool isCode = false;
    for (const TextLine& line : lines) {
        const bool fence = isCodeFence(line.text);
        if (fence) isCode = !isCode;
        if (fence || isCode) {
            marked.text.append(line.text).push_back('\n');
        } else {
            finder.readLine(line);
        }
    }
    return marked;
}

}  // namespace contentc
