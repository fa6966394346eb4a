#pragma once

#include <set>
#include <string>
#include <string_view>

#include "tools/contentc/source/PageSource.h"

namespace contentc {

/// The text that a reader sees, without tags and marks. Characters given by number are resolved when the code
/// page has them. A tag leaves a blank, unless it is one of raised, lowered or emphasised text.
std::string visibleText(const std::vector<TextLine>& body);

/// Whether a character of the code page is a Greek or Latin letter.
bool isLetter(char c);

/// A word as it stands in the index: in lower case, with a final sigma at its end, and with only the first of
/// two accents. (The second accent comes from a word that follows.)
std::string normalizedWord(std::string_view word);

/// The normalized words of a text. A word begins with a letter, goes on with letters and digits, and has at
/// least two characters; so a chemical formula is a word, without a number before it.
std::set<std::string> wordsOf(std::string_view text);

/// The words of a page's title and body.
std::set<std::string> wordsOf(const PageSource& page);

}  // namespace contentc
