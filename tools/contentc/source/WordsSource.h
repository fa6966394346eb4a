#pragma once

#include <optional>
#include <set>
#include <string>
#include <vector>

#include "tools/contentc/source/SourceText.h"

namespace contentc {

/// The author's lists of words: those that are not worth finding, and those that belong together.
struct WordsSource {
    /// Words that are not indexed, normalized.
    std::set<std::string> stopWords;
    /// Forms of one word each, normalized; no word is in two groups. Other words are grouped by their stems.
    std::vector<std::vector<std::string>> formGroups;
};

/// Reads the list of stop words and the list of form groups; a missing file is an empty list. Words stand
/// between blanks, a group on each line; blank lines and lines that begin with `#` are skipped. A word in two
/// groups is reported.
WordsSource readWords(const std::optional<SourceFile>& stopWords, const std::optional<SourceFile>& forms,
                      Diagnostics& diagnostics);

}  // namespace contentc
