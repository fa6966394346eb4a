#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "tools/contentc/source/SourceText.h"

namespace contentc {

/// One of our own conventions in a line of Markdown.
struct InlineMark {
    enum class Kind {
        /// `$formula$`
        formula,
        /// `[[words]]` or `[[words|term]]`
        term,
        /// The address of a link, `(address)` or `(<address>)`.
        target,
    };
    Kind kind;
    /// The formula, the words or the address.
    std::string text;
    /// The name of the term; the words unless another is given.
    std::string term;
    SourcePlace place;
    /// Where the words of a term begin.
    SourcePlace wordsPlace;
};

/// Lines of Markdown in which our conventions are replaced by one character each (see `firstMark`), so that
/// Markdown does not take their signs for its own.
struct MarkedText {
    /// Lines ended by LF.
    std::string text;
    std::vector<InlineMark> marks;
};

/// Whether a line begins or ends a block of code.
bool isCodeFence(std::string_view line);

/// Finds the conventions in lines in UTF-8. The place of a line that is a part of a line of the source has
/// the column in which it begins. Those that are not closed on their line are reported. Code is left alone.
MarkedText markInlines(const std::vector<TextLine>& lines, Diagnostics& diagnostics);

}  // namespace contentc
