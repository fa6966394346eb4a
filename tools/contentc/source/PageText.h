#pragma once

#include <set>
#include <string>
#include <string_view>

#include "tools/contentc/source/PageSource.h"

namespace contentc {

/// What a reader sees of a body: its text without tags and marks, characters by name or number resolved where
/// the code page has them. Tags other than those of raised, lowered and emphasised text leave a blank.
std::string visibleText(const std::vector<TextLine>& body);

/// A word as it stands in the index: lower case, a final sigma at its end, and only the first of two accents
/// (the second comes from the word behind).
std::string normalizedWord(std::string_view word);

/// The words of a text, normalized: runs of letters and digits that begin with a letter, two characters or
/// longer. Chemical formulas are words, without the number before them.
std::set<std::string> wordsOf(std::string_view text);

/// The words of a page's title and body.
std::set<std::string> wordsOf(const PageSource& page);

}  // namespace contentc
