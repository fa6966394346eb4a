#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "tools/contentc/source/SourceText.h"

namespace contentc {

/// HTML in UTF-8 that is written line by line, each with the place of the source that it comes from.
class HtmlLines {
  public:
    /// Ends the line and begins a new one, unless the line is empty. What follows comes from `place`.
    void beginLine(const SourcePlace& place) {
        endLine();
        current_.place = place;
    }
    void endLine() {
        if (!current_.text.empty()) lines_.push_back(current_);
        current_.text.clear();
    }
    void add(std::string_view html) { current_.text.append(html); }
    /// Ends the line within a paragraph.
    void breakLine() {
        endLine();
        ++current_.place.line;
    }
    void addLine(std::string_view html, const SourcePlace& place) {
        beginLine(place);
        add(html);
        endLine();
    }
    void append(std::vector<TextLine> lines) {
        endLine();
        for (TextLine& line : lines) lines_.push_back(std::move(line));
    }

    const SourcePlace& place() const { return current_.place; }

    std::vector<TextLine> take() {
        endLine();
        return std::move(lines_);
    }

  private:
    std::vector<TextLine> lines_;
    TextLine current_;
};

}  // namespace contentc
